#pragma once

#include "reports/engine/ReportTable.h"

#include <QDate>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;

/** The input boxes for a report's parameters: the period and the filters. */
class ReportQuestions final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportQuestions(QWidget* parent = nullptr);

    /** Creates new boxes with the defaults; the period keeps its value (at first the month to date). */
    void ask(const Report& report);
    /** Fills the choices of a parameter with rows (value, label). */
    void fillChoices(int parameter, const QVector<ReportRow>& rows);

    /** All parameter names with their values; NULL for empty ones. */
    [[nodiscard]] QVariantMap values() const;
    /** The parameters as texts for the paper, one line each, without empty ones. */
    [[nodiscard]] QStringList words(const QString& dateFormat) const;
    void retranslate();

signals:
    /** Return was pressed in a box. */
    void answered();

private:
    struct Question
    {
        ReportParameter parameter;
        QLabel* label;
        QWidget* box;
    };

    QWidget* makeBox(const ReportParameter& parameter);
    QWidget* makePeriod();
    void setPeriod(int index);
    [[nodiscard]] QString titleOf(const ReportParameter& parameter) const;
    void fillPeriods();

    QList<Question> m_questions;
    QComboBox* m_periods = nullptr;
    QDateEdit* m_from = nullptr;
    QDateEdit* m_to = nullptr;
    QDate m_firstDay;
    QDate m_lastDay;
};
