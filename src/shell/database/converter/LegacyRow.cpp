#include "shell/database/converter/LegacyRow.h"

#include <QStringList>

#include <algorithm>

bool LegacyRow::isNull(const QString& column) const { return !m_record.contains(column) || m_record.isNull(column); }

QString LegacyRow::text(const QString& column) const
{
    return isNull(column) ? QString("") : m_record.value(column).toString().trimmed();
}

QString LegacyRow::firstText(const QStringList& columns) const
{
    for (const QString& column : columns) {
        QString found = text(column);
        if (!found.isEmpty())
            return found;
    }
    return QString("");
}

double LegacyRow::number(const QString& column) const
{
    const QVariant held = isNull(column) ? QVariant() : m_record.value(column);
    const double number =
        held.type() == QVariant::String ? held.toString().remove('%').trimmed().toDouble() : held.toDouble();
    return qIsFinite(number) ? number : 0;
}

double LegacyRow::firstNumber(const QStringList& columns) const
{
    double found = 0;
    std::any_of(columns.begin(), columns.end(), [&](const QString& column) { return (found = number(column)) != 0; });
    return found;
}

QDate LegacyRow::date(const QString& column) const { return isNull(column) ? QDate() : value(column).toDate(); }

bool LegacyRow::flag(const QString& column) const
{
    static const QStringList yes{"t", "true", "y", "ya", "yes"};
    return yes.contains(text(column).toLower()) || number(column) != 0;
}
