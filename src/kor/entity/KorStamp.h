#pragma once

#include <QDateTime>

#include <limits>

/**
 * A local point in time as the database writes it. Only reading it as a QDateTime asks the C library for the time zone,
 * which costs more than all the rest of a record; most stamps are never read.
 */
class KorStamp
{
public:
    KorStamp() = default;
    explicit KorStamp(const QDateTime& moment);
    /** From "2026-11-24 18:30:05.123456", rounded to milliseconds; without a value for any other text. */
    [[nodiscard]] static KorStamp fromSql(const char* text);

    /** From "2026-11-24" and whatever follows; invalid for any other text. */
    [[nodiscard]] static QDate dateFromSql(const char* text);

    [[nodiscard]] bool isValid() const { return m_wall != none; }
    /** Invalid if there is no value. */
    [[nodiscard]] QDateTime toDateTime() const;

private:
    static constexpr qint64 none = std::numeric_limits<qint64>::min();

    // The milliseconds that a calendar and a clock on the wall would have counted since Julian day 0.
    qint64 m_wall = none;
};
