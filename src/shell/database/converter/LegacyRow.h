#pragma once

#include <QDate>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

/** One row of the former system. NULL values and missing columns are read as an empty text, 0, no date or false. */
class LegacyRow
{
public:
    explicit LegacyRow(const QSqlRecord& record) : m_record(record) {}

    [[nodiscard]] bool isNull(const QString& column) const;
    /** The driver's value, for binding to another statement. */
    [[nodiscard]] QVariant value(const QString& column) const { return m_record.value(column); }
    /** The trimmed text. */
    [[nodiscard]] QString text(const QString& column) const;
    /** The first non-empty text of these columns. */
    [[nodiscard]] QString firstText(const QStringList& columns) const;
    [[nodiscard]] double number(const QString& column) const;
    /** The first non-zero number of these columns. */
    [[nodiscard]] double firstNumber(const QStringList& columns) const;
    [[nodiscard]] QDate date(const QString& column) const;
    [[nodiscard]] bool flag(const QString& column) const;

private:
    QSqlRecord m_record;
};
