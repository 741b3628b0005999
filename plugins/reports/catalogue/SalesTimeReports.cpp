#include "reports/catalogue/SalesLists.h"
#include "reports/catalogue/SalesSums.h"

using Column = ReportColumn;

namespace
{
/**
 * One row for each day, week or month from the first to the last with a sale. Those without sales are included;
 * otherwise the line in the chart would hide days when the restaurant was closed.
 */
Report overTime(const QString& id, const char* title, const char* about, const QString& unit,
                const ReportColumn& column)
{
    Report report;
    report.id = id;
    report.title = title;
    report.about = about;
    report.parameters = SalesSums::questions();
    const QString first = "date_trunc('" + unit + "', i.invoice_date)::date";
    report.query = "with sold as (select " + first + " as day," + SalesSums::sums + " from invoice i where " +
                   SalesSums::scope + R"( group by 1)
        select series.day, coalesce(sales, 0) as sales, coalesce(subtotal, 0) as subtotal,
               coalesce(discount, 0) as discount, coalesce(tax, 0) as tax, coalesce(service, 0) as service,
               coalesce(total, 0) as total, coalesce(cash, 0) as cash, coalesce(credit, 0) as credit,
               coalesce(due, 0) as due
        from (select generate_series(min(day)::timestamp, max(day)::timestamp, interval '1 )" +
                   unit + R"(')::date as day from sold) series
        left join sold on sold.day = series.day
        order by series.day)";
    report.columns =
        QList<ReportColumn>{column} + SalesSums::columns({"sales", "subtotal", "discount", "tax", "service", "total",
                                                          "average", "cash", "credit", "due"});
    report.chart = ReportChart::lines("day", {"total"});
    return report;
}

/** Columns for recurring times, with the average per day on which anything was sold. */
QList<ReportColumn> recurringColumns(const ReportColumn& column)
{
    return QList<ReportColumn>{column} + SalesSums::columns({"sales", "total", "share", "average"}) +
           QList<ReportColumn>{Column::count("days", QT_TRANSLATE_NOOP("Reports", "Days")),
                               Column::money("perday", QT_TRANSLATE_NOOP("Reports", "Total per day"))};
}

Report byHour()
{
    Report report;
    report.id = "sales-by-hour";
    report.title = QT_TRANSLATE_NOOP("Reports", "Sales by hour");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "At which hours of the day the invoices were saved first, which is when "
                                     "the guests paid rather than when they came. Days counts the days of "
                                     "the period with any sale.");
    report.parameters = SalesSums::questions();
    report.query = QString(R"(
        with sold as (select extract(hour from i.createdtime)::int as hour, count(*) as sales,
                             sum(i.grandtotal_amount) as total
                      from invoice i where )") +
                   SalesSums::scope + R"( group by 1),
             open as (select count(distinct i.invoice_date) as days from invoice i where )" +
                   SalesSums::scope + R"(),
             hours as (select generate_series(min(hour), max(hour)) as hour from sold
                       union select hour from sold where hour is null)
        select coalesce(lpad(hours.hour::text, 2, '0') || ':00', '') as hour, coalesce(sales, 0) as sales,
               coalesce(total, 0) as total, 100 * coalesce(total, 0) / nullif(sum(total) over (), 0) as share, days,
               coalesce(total, 0) / nullif(days, 0) as perday
        from hours cross join open left join sold on sold.hour is not distinct from hours.hour
        order by 1)";
    report.columns = recurringColumns(Column::text("hour", QT_TRANSLATE_NOOP("Reports", "Hour"))
                                          .words({{"", QT_TRANSLATE_NOOP("Reports", "Not known")}}));
    report.chart = ReportChart::bars("hour", {"total"});
    return report;
}

Report byWeekday()
{
    Report report;
    report.id = "sales-by-weekday";
    report.title = QT_TRANSLATE_NOOP("Reports", "Sales by weekday");
    report.about = QT_TRANSLATE_NOOP("Reports", "What each weekday brings. Days counts the days with a sale, so that a "
                                                "holiday does not lower the total per day.");
    report.parameters = SalesSums::questions();
    report.query = QString(R"(
        with days as (select i.invoice_date as day, count(*) as sales, sum(i.grandtotal_amount) as total
                      from invoice i where )") +
                   SalesSums::scope + R"( group by 1)
        select extract(isodow from day)::int as weekday, sum(sales)::bigint as sales, sum(total) as total,
               100 * sum(total) / nullif(sum(sum(total)) over (), 0) as share, count(*) as days,
               sum(total) / count(*) as perday
        from days group by 1 order by 1)";
    report.columns = recurringColumns(Column::text("weekday", QT_TRANSLATE_NOOP("Reports", "Weekday"))
                                          .words({{1, QT_TRANSLATE_NOOP("Reports", "Monday")},
                                                  {2, QT_TRANSLATE_NOOP("Reports", "Tuesday")},
                                                  {3, QT_TRANSLATE_NOOP("Reports", "Wednesday")},
                                                  {4, QT_TRANSLATE_NOOP("Reports", "Thursday")},
                                                  {5, QT_TRANSLATE_NOOP("Reports", "Friday")},
                                                  {6, QT_TRANSLATE_NOOP("Reports", "Saturday")},
                                                  {7, QT_TRANSLATE_NOOP("Reports", "Sunday")}}));
    report.chart = ReportChart::bars("weekday", {"perday"});
    return report;
}
} // namespace

QList<Report> SalesLists::byTime()
{
    return {
        overTime("sales-by-day", QT_TRANSLATE_NOOP("Reports", "Sales by day"),
                 QT_TRANSLATE_NOOP("Reports", "What was invoiced on each day, paid or not. Cash is what was received "
                                              "at the sale less the change; credit is what was settled otherwise, "
                                              "by members later too."),
                 "day", Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date"))),
        overTime("sales-by-week", QT_TRANSLATE_NOOP("Reports", "Sales by week"),
                 QT_TRANSLATE_NOOP("Reports", "What was invoiced in each week from Monday to Sunday. The first and "
                                              "the last week count the days of the period alone."),
                 "week", Column::date("day", QT_TRANSLATE_NOOP("Reports", "Week from"))),
        overTime("sales-by-month", QT_TRANSLATE_NOOP("Reports", "Sales by month"),
                 QT_TRANSLATE_NOOP("Reports", "What was invoiced in each month. The first and the last month count "
                                              "the days of the period alone."),
                 "month", Column::month("day", QT_TRANSLATE_NOOP("Reports", "Month"))),
        byHour(), byWeekday()};
}
