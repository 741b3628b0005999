#pragma once

#include <QDate>
#include <QPair>
#include <QVariant>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QGridLayout;
class QLineEdit;

/** The filters above a list of documents: boxes with their labels in rows, each box as wide as the others. */
class AppFilterBar final : public QWidget
{
    Q_OBJECT

public:
    /** A choice's rows: what is shown, and what it stands for. */
    using Rows = QList<QPair<QString, QVariant>>;

    explicit AppFilterBar(int boxesPerRow, QWidget* parent = nullptr);

    // Each box is the bar's; its name is how the page's form knows it.
    QDateEdit* addDate(const QString& name, const QString& label, const QDate& date = QDate::currentDate());
    QComboBox* addChoice(const QString& name, const QString& label, const Rows& rows);
    QLineEdit* addText(const QString& name, const QString& label);
    void add(const QString& label, QWidget* box);

private:
    QGridLayout* m_layout;
    int m_boxesPerRow;
    int m_count = 0;
};
