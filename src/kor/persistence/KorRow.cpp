#include "kor/persistence/KorRow.h"

#include <libpq-fe.h>

#include <charconv>
#include <cstring>

bool KorRow::isNull(int column) const { return column < 0 || PQgetisnull(m_result, m_row, column); }

const char* KorRow::text(int column) const
{
    const char* text = column < 0 ? nullptr : PQgetvalue(m_result, m_row, column);
    return text ? text : "";
}

int KorRow::toInt(int column) const
{
    const char* digits = text(column);
    int number = 0;
    std::from_chars(digits, digits + std::strlen(digits), number);
    return number;
}

double KorRow::toDouble(int column) const
{
    const char* digits = text(column);
    double number = 0;
    std::from_chars(digits, digits + std::strlen(digits), number);
    return number;
}

QString KorRow::toString(int column) const
{
    return isNull(column) ? QString() : QString::fromUtf8(text(column), PQgetlength(m_result, m_row, column));
}

QDate KorRow::toDate(int column) const
{
    const char* digits = text(column);
    const QDate date = KorStamp::dateFromSql(digits);
    return date.isValid() || !*digits ? date : QDate::fromString(QString::fromLatin1(digits), Qt::ISODate);
}

KorStamp KorRow::toStamp(int column) const
{
    const KorStamp stamp = KorStamp::fromSql(text(column));
    // A year of five digits, for example.
    return stamp.isValid() || isNull(column)
               ? stamp
               : KorStamp(QDateTime::fromString(QString::fromLatin1(text(column)), Qt::ISODate));
}
