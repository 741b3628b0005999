#pragma once

#include "reports/engine/ReportTable.h"

#include <QDate>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;

/** The boxes in which a report's questions are answered: the period, and what narrows the answer. */
class ReportQuestions final : public QWidget
{
    Q_OBJECT

public:
    explicit ReportQuestions(QWidget* parent = nullptr);

    /** Makes the boxes anew, with nothing chosen and the month so far; the period stays as it was. */
    void ask(const Report& report);
    /** The rows (value, label) for the boxes that choose among rows, in the order of the report's parameters. */
    void fillChoices(int parameter, const QVector<ReportRow>& rows);

    /** Every name of the report with its value; NULL for what was left open. */
    [[nodiscard]] QVariantMap values() const;
    /** What was asked, for the paper: a line each, without what was left open. */
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
