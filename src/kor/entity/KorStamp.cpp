#include "kor/entity/KorStamp.h"

#include <cctype>
#include <cstring>

namespace
{
constexpr qint64 millisecondsOfDay = 24 * 60 * 60 * 1000;

qint64 wallOf(const QDate& date, const QTime& time)
{
    return date.toJulianDay() * millisecondsOfDay + time.msecsSinceStartOfDay();
}

/** The two digits at this place. */
int pair(const char* text) { return (text[0] - '0') * 10 + text[1] - '0'; }

bool fits(const char* text, const char* pattern)
{
    for (; *pattern; ++text, ++pattern) {
        const bool isDigit = std::isdigit(static_cast<unsigned char>(*text));
        if (*pattern == '0' ? !isDigit : *text != *pattern)
            return false;
    }
    return true;
}

/** What follows the seconds, ".5" or ".123456"; -1 if it is something else. */
int milliseconds(const char* fraction)
{
    if (!*fraction)
        return 0;
    if (*fraction != '.')
        return -1;
    int micros = 0;
    int digits = 0;
    for (++fraction; std::isdigit(static_cast<unsigned char>(*fraction)) && digits < 6; ++fraction, ++digits)
        micros = micros * 10 + *fraction - '0';
    if (*fraction || digits == 0)
        return -1;
    for (; digits < 6; ++digits)
        micros *= 10;
    return qMin((micros + 500) / 1000, 999);
}
} // namespace

KorStamp::KorStamp(const QDateTime& moment)
{
    const QDateTime local = moment.toLocalTime();
    if (local.isValid())
        m_wall = wallOf(local.date(), local.time());
}

QDate KorStamp::dateFromSql(const char* text)
{
    if (!fits(text, "0000-00-00"))
        return {};
    return {pair(text) * 100 + pair(text + 2), pair(text + 5), pair(text + 8)};
}

KorStamp KorStamp::fromSql(const char* text)
{
    KorStamp stamp;
    constexpr char pattern[] = "0000-00-00 00:00:00";
    if (!fits(text, pattern))
        return stamp;
    const QDate date = dateFromSql(text);
    const int fraction = milliseconds(text + std::strlen(pattern));
    const QTime time(pair(text + 11), pair(text + 14), pair(text + 17), fraction);
    if (date.isValid() && time.isValid())
        stamp.m_wall = wallOf(date, time);
    return stamp;
}

QDateTime KorStamp::toDateTime() const
{
    if (!isValid())
        return {};
    return QDateTime(QDate::fromJulianDay(m_wall / millisecondsOfDay),
                     QTime::fromMSecsSinceStartOfDay(static_cast<int>(m_wall % millisecondsOfDay)));
}
