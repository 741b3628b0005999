#include "reports/catalogue/SalesSums.h"

#include "reports/catalogue/Questions.h"

using Column = ReportColumn;

namespace SalesSums
{
// The cash of an overpaid sale is its total, because the change was returned. The due amount is calculated, because the
// kinds of sale store it with different signs.
const char* const sums = R"(
    count(*) as sales, sum(i.sub_total_amount) as subtotal, sum(i.discount_amount) as discount,
    sum(i.tax_amount) as tax, sum(i.service_amount) as service, sum(i.grandtotal_amount) as total,
    sum(least(i.amount_paid_amount, i.grandtotal_amount)) as cash, sum(i.other_payment_amount) as credit,
    sum(greatest(i.grandtotal_amount - i.amount_paid_amount - i.other_payment_amount, 0)) as due)";

const char* const scope = R"(
    i.invoice_date between :from and :to
    and (:type::text is null or i.invoice_type = :type)
    and (:cashier::bigint is null or i.createdby = :cashier::bigint))";

QList<ReportParameter> questions() { return {ReportParameter::period(), Questions::saleType(), Questions::cashier()}; }

QList<QPair<QVariant, const char*>> typeWords() { return Questions::saleType().choices; }

ReportColumn typeColumn() { return Column::text("type", QT_TRANSLATE_NOOP("Reports", "Type")).words(typeWords()); }

ReportColumn statusColumn()
{
    return Column::text("status", QT_TRANSLATE_NOOP("Reports", "Status"))
        .words({{1, QT_TRANSLATE_NOOP("Reports", "Fully paid")},
                {2, QT_TRANSLATE_NOOP("Reports", "Unpaid")},
                {3, QT_TRANSLATE_NOOP("Reports", "Partially paid")}});
}

QList<ReportColumn> columns(const QStringList& fields)
{
    const QList<ReportColumn> all{
        Column::count("sales", QT_TRANSLATE_NOOP("Reports", "Sales")).sum(),
        Column::money("subtotal", QT_TRANSLATE_NOOP("Reports", "Subtotal")).sum(),
        Column::money("discount", QT_TRANSLATE_NOOP("Reports", "Discount")).sum(),
        Column::money("tax", QT_TRANSLATE_NOOP("Reports", "Tax")).sum(),
        Column::money("service", QT_TRANSLATE_NOOP("Reports", "Service")).sum(),
        Column::money("total", QT_TRANSLATE_NOOP("Reports", "Total")).sum(),
        Column::percent("share", QT_TRANSLATE_NOOP("Reports", "Share")).sum(),
        Column::average("average", QT_TRANSLATE_NOOP("Reports", "Average sale"), "total", "sales"),
        Column::money("cash", QT_TRANSLATE_NOOP("Reports", "Cash")).sum(),
        Column::money("credit", QT_TRANSLATE_NOOP("Reports", "Credit")).sum(),
        Column::money("due", QT_TRANSLATE_NOOP("Reports", "Still due")).sum()};
    QList<ReportColumn> columns;
    for (const ReportColumn& column : all) {
        if (fields.contains(column.field))
            columns.append(column);
    }
    return columns;
}

Report salesBy(const QString& id, const char* title, const char* about, const Key& key)
{
    Report report;
    report.id = id;
    report.title = title;
    report.about = about;
    report.parameters = questions();
    QStringList places;
    for (int i = 1; i <= key.columns.size(); ++i)
        places.append(QString::number(i));
    report.query = "select " + key.select + ',' + sums +
                   ", 100 * sum(i.grandtotal_amount) / nullif(sum(sum(i.grandtotal_amount)) over (), 0) as share "
                   "from invoice i " +
                   key.joins + " where " + scope + ' ' + key.condition + " group by " + places.join(", ") +
                   " order by total desc, 1";
    report.columns =
        key.columns + columns({"sales", "subtotal", "discount", "total", "share", "average", "cash", "credit", "due"});
    report.chart = ReportChart::ranking(key.columns.first().field, "total");
    return report;
}
} // namespace SalesSums
