#pragma once

#include <QDate>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

/**
 * One row of the former system, read without complaint: what is NULL, or a column that its tables do not have, is an
 * empty text, 0, no date or false.
 */
class LegacyRow
{
public:
    explicit LegacyRow(const QSqlRecord& record) : m_record(record) {}

    [[nodiscard]] bool isNull(const QString& column) const;
    /** As the driver gives it, to be bound again. */
    [[nodiscard]] QVariant value(const QString& column) const { return m_record.value(column); }
    /** Without the blanks around it. */
    [[nodiscard]] QString text(const QString& column) const;
    /** The first of the columns that holds a text. */
    [[nodiscard]] QString firstText(const QStringList& columns) const;
    [[nodiscard]] double number(const QString& column) const;
    /** The first of the columns that holds more or less than nothing. */
    [[nodiscard]] double firstNumber(const QStringList& columns) const;
    [[nodiscard]] QDate date(const QString& column) const;
    [[nodiscard]] bool flag(const QString& column) const;

private:
    QSqlRecord m_record;
};
