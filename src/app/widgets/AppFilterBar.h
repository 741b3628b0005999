#pragma once

#include <QDate>
#include <QPair>
#include <QVariant>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QGridLayout;
class QLineEdit;

/** The filters above a list of documents: labelled fields in rows, all of the same width. */
class AppFilterBar final : public QWidget
{
    Q_OBJECT

public:
    /** The entries of a choice: the shown text and the value. */
    using Rows = QList<QPair<QString, QVariant>>;

    explicit AppFilterBar(int boxesPerRow, QWidget* parent = nullptr);

    // The bar owns the fields. The name is the object name, by which the page finds the field.
    QDateEdit* addDate(const QString& name, const QString& label, const QDate& date = QDate::currentDate());
    QComboBox* addChoice(const QString& name, const QString& label, const Rows& rows);
    QLineEdit* addText(const QString& name, const QString& label);
    void add(const QString& label, QWidget* box);

private:
    QGridLayout* m_layout;
    int m_boxesPerRow;
    int m_count = 0;
};
