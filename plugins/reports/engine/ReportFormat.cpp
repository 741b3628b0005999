#include "reports/engine/ReportFormat.h"

#include "app/context/AppContext.h"
#include "reports/engine/ReportTable.h"

#include <QDateTime>

QLocale restaurantLocale() { return QLocale(AppContext::instance()->locale()); }

ReportFormat::ReportFormat(QString dateFormat, const QLocale& locale)
    : m_dateFormat(std::move(dateFormat)), m_locale(locale)
{}

QString ReportFormat::text(const QVariant& value, ReportColumn::Kind kind) const
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (kind) {
    case ReportColumn::Text:
        return value.toString();
    case ReportColumn::Date:
        return m_locale.toString(value.toDate(), m_dateFormat);
    case ReportColumn::Month:
        return m_locale.toString(value.toDate(), "MMM yyyy");
    case ReportColumn::DateTime:
        return m_locale.toString(value.toDateTime(), m_dateFormat + " HH:mm");
    default:
        return number(value.toDouble(), kind);
    }
}

QString ReportFormat::number(double value, ReportColumn::Kind kind) const
{
    if (kind == ReportColumn::Percent)
        return m_locale.toString(value, 'f', 1) + " %";
    // Quantities are usually whole; others are shown with decimals.
    const bool broken = kind == ReportColumn::Quantity && !qFuzzyIsNull(value - qRound64(value));
    return m_locale.toString(value, 'f', broken ? 2 : 0);
}

QString ReportFormat::cell(const ReportTable& table, int line, int column) const
{
    const Report& report = table.report();
    QString shown = text(table.value(line, column), report.columns.at(column).kind);
    const ReportTable::LineKind kind = table.lineKind(line);
    if (kind == ReportTable::TotalLine && column == 0 && shown.isEmpty())
        return reportText(QT_TRANSLATE_NOOP("Reports", "Total"));
    if (kind == ReportTable::SubtotalLine && column == report.columnOf(report.group))
        return reportText(QT_TRANSLATE_NOOP("Reports", "Total %1")).arg(shown);
    return shown;
}

Qt::Alignment ReportFormat::alignment(ReportColumn::Kind kind)
{
    return Qt::AlignVCenter | (kind >= ReportColumn::Count ? Qt::AlignRight : Qt::AlignLeft);
}
