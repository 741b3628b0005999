#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

namespace
{
using Column = ReportColumn;

Report salesByDay()
{
    Report report;
    report.id = "sales-by-day";
    report.title = QT_TRANSLATE_NOOP("Reports", "Sales by day");
    report.about = QT_TRANSLATE_NOOP("Reports", "What was invoiced on each day, paid or not.");
    report.parameters = {ReportParameter::period(), Questions::saleType(), Questions::cashier()};
    report.query = R"(
        select invoice_date as day, count(*) as sales, sum(sub_total_amount) as subtotal,
               sum(discount_amount) as discount, sum(tax_amount) as tax, sum(service_amount) as service,
               sum(grandtotal_amount) as total
        from invoice
        where invoice_date between :from and :to
          and (:type::text is null or invoice_type = :type)
          and (:cashier::bigint is null or createdby = :cashier::bigint)
        group by invoice_date
        order by invoice_date)";
    report.columns = {Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")),
                      Column::count("sales", QT_TRANSLATE_NOOP("Reports", "Sales")).sum(),
                      Column::money("subtotal", QT_TRANSLATE_NOOP("Reports", "Subtotal")).sum(),
                      Column::money("discount", QT_TRANSLATE_NOOP("Reports", "Discount")).sum(),
                      Column::money("tax", QT_TRANSLATE_NOOP("Reports", "Tax")).sum(),
                      Column::money("service", QT_TRANSLATE_NOOP("Reports", "Service")).sum(),
                      Column::money("total", QT_TRANSLATE_NOOP("Reports", "Total")).sum(),
                      Column::average("average", QT_TRANSLATE_NOOP("Reports", "Average sale"), "total", "sales")};
    report.chart = ReportChart::lines("day", {"total"});
    return report;
}
} // namespace

ReportSubject ReportCatalogue::sales()
{
    return {"Penjualan", QT_TRANSLATE_NOOP("Reports", "Sales Reports"), {salesByDay()}};
}
