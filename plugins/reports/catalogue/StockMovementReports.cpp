#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/StockFigures.h"

using Column = ReportColumn;

namespace
{
const char* const itemFields = "jenis_item.nama as itemtype, item.kode as code, item.nama as name, satuan.kode as unit";
const char* const itemJoins = " join jenis_item on jenis_item.id = item.jenis join satuan on satuan.id = item.satuan ";

// Not summed, because quantities in different units do not add up. Only the journal sums them, for use with one item.
ReportColumn quantity(const QString& field, const char* title) { return Column::quantity(field, title); }

Report movements()
{
    Report report;
    report.id = "stock-movements";
    report.title = QT_TRANSLATE_NOOP("Reports", "Movements by item");
    report.about = QT_TRANSLATE_NOOP("Reports", "What there was of each item before the period, what came and went in "
                                                "it, and what was left. Counted is what counts of the storeroom "
                                                "changed.");
    report.parameters = {ReportParameter::period(), Questions::itemType(), Questions::item()};
    report.query =
        "with " + StockFigures::movements(":from::date", ":to::date") + ", " + StockFigures::price(":to::date") +
        " select " + itemFields + R"(, stock.opening, stock.bought, stock.sold, stock.returned,
               stock.closing - stock.opening - stock.bought + stock.sold + stock.returned as counted, stock.closing,
               stock.closing * price.price as value
        from item join stock on stock.item_id = item.id join price on price.item_id = item.id)" +
        itemJoins + " where item.item_type = 1 " + Asked::item + " order by jenis_item.nama, item.nama, item.id";
    report.columns = {Columns::itemType(),
                      Columns::code(),
                      Columns::item(),
                      Columns::unit(),
                      quantity("opening", QT_TRANSLATE_NOOP("Reports", "Before")),
                      quantity("bought", QT_TRANSLATE_NOOP("Reports", "Bought")),
                      quantity("sold", QT_TRANSLATE_NOOP("Reports", "Sold")),
                      quantity("returned", QT_TRANSLATE_NOOP("Reports", "Returned")),
                      quantity("counted", QT_TRANSLATE_NOOP("Reports", "Counted")),
                      quantity("closing", QT_TRANSLATE_NOOP("Reports", "Left")),
                      Column::money("value", QT_TRANSLATE_NOOP("Reports", "Value")).sum()};
    report.group = "itemtype";
    return report;
}

Report journal()
{
    Report report;
    report.id = "stock-journal";
    report.title = QT_TRANSLATE_NOOP("Reports", "Movements by day");
    report.about = QT_TRANSLATE_NOOP("Reports", "Every purchase, return and adjustment of an item, and what was sold "
                                                "of it on each day.");
    const QList<QPair<QVariant, const char*>> kinds{{1, QT_TRANSLATE_NOOP("Reports", "Purchase")},
                                                    {2, QT_TRANSLATE_NOOP("Reports", "Sales")},
                                                    {3, QT_TRANSLATE_NOOP("Reports", "Adjustment")},
                                                    {4, QT_TRANSLATE_NOOP("Reports", "Return")}};
    report.parameters = {ReportParameter::period(), Questions::itemType(), Questions::item(),
                         ReportParameter::choice("kind", QT_TRANSLATE_NOOP("Reports", "Movement:"), kinds)};
    report.query = QString(R"(
        select lines.day, lines.kind, lines.no, %1, lines.qtyin, lines.qtyout
        from (select 1 as kind, line.item_id, doc.purchase_date as day, doc.no, sum(line.qty) as qtyin, 0 as qtyout
              from acquisition doc join acquisition_detail line on line.acquisition_id = doc.id
              where doc.purchase_date between :from and :to group by doc.id, line.item_id
              union all
              select 2, line.item_id, doc.invoice_date, null, 0, sum(line.qty)
              from invoice doc join invoice_detail line on line.invoice_id = doc.id
              where doc.invoice_date between :from and :to group by line.item_id, doc.invoice_date
              union all
              select 3, item_id, tanggal, reason, greatest(qty_adj, 0), greatest(-qty_adj, 0)
              from stock_take where tanggal between :from and :to
              union all
              select 4, line.item_id, doc.credit_note_date, doc.no, 0, sum(line.qty_returned)
              from credit_note doc join credit_note_detail line on line.credit_note_id = doc.id
              where doc.credit_note_date between :from and :to and doc.status <> 4
              group by doc.id, line.item_id) lines
        join item on item.id = lines.item_id %2
        where (:kind::integer is null or lines.kind = :kind::integer) %3
        order by lines.day, lines.kind, lines.no, item.nama, item.id)")
                       .arg(itemFields, itemJoins, Asked::item);
    report.columns = {Columns::day(),
                      Column::text("kind", QT_TRANSLATE_NOOP("Reports", "Movement")).words(kinds),
                      Column::text("no", QT_TRANSLATE_NOOP("Reports", "No. or reason")),
                      Columns::code(),
                      Columns::item(),
                      Columns::itemType(),
                      quantity("qtyin", QT_TRANSLATE_NOOP("Reports", "In")).sum(),
                      quantity("qtyout", QT_TRANSLATE_NOOP("Reports", "Out")).sum(),
                      Columns::unit()};
    return report;
}

Report adjustments()
{
    Report report;
    report.id = "stock-adjustments";
    report.title = QT_TRANSLATE_NOOP("Reports", "Adjustments by reason");
    report.about = QT_TRANSLATE_NOOP("Reports", "What counts of the storeroom took away or added, why, and who entered "
                                                "it; the worth is at the price of the last purchase.");
    report.parameters = {ReportParameter::period(), Questions::itemType(), Questions::item(), Questions::cashier()};
    report.parameters.last().title = QT_TRANSLATE_NOOP("Reports", "User:");
    report.query = "with " + StockFigures::price(":to::date") + R"(
        select take.reason, take.tanggal as day, )" +
                   itemFields + R"(, take.qty_before as before, take.qty_adj as changed, take.qty as after,
               take.source_acct_code || coalesce(' ' || bank.nama, '') as account, users.username,
               take.qty_adj * price.price as value
        from stock_take take join item on item.id = take.item_id join price on price.item_id = item.id
        left join bank on bank.kode = take.source_acct_code left join users on users.id = take.createdby )" +
                   itemJoins + R"( where take.tanggal between :from and :to
        and (:cashier::bigint is null or take.createdby = :cashier::bigint))" +
                   Asked::item + " order by take.reason, take.tanggal, take.id";
    report.columns = {Column::text("reason", QT_TRANSLATE_NOOP("Reports", "Reason")),
                      Columns::day(),
                      Columns::code(),
                      Columns::item(),
                      Column::quantity("before", QT_TRANSLATE_NOOP("Reports", "Before")),
                      quantity("changed", QT_TRANSLATE_NOOP("Reports", "Changed by")),
                      Column::quantity("after", QT_TRANSLATE_NOOP("Reports", "After")),
                      Columns::unit(),
                      Column::money("value", QT_TRANSLATE_NOOP("Reports", "Worth")).sum(),
                      Column::text("account", QT_TRANSLATE_NOOP("Reports", "Account")),
                      Columns::user()};
    report.group = "reason";
    report.chart = ReportChart::bars("reason", {"value"});
    return report;
}

Report usage()
{
    Report report;
    report.id = "stock-usage";
    report.title = QT_TRANSLATE_NOOP("Reports", "Usage against purchases");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What was bought of each item, less what went back, beside what was sold "
                                     "of it, alone or as a component of grouped items. Much more bought than "
                                     "used is waste, loss or a growing stock. Components do not change the "
                                     "stock on hand.");
    report.parameters = {ReportParameter::period(), Questions::itemType(), Questions::item()};
    report.query = QString(R"(
        with sold as (
            select line.item_id, sum(line.qty) as qty from invoice join invoice_detail line on line.invoice_id = invoice.id
            where invoice.invoice_date between :from and :to group by line.item_id),
        components as (
            select part.original_item_id as item_id, sum(sold.qty * part.jumlah) as qty
            from sold join grouped_item part on part.parent_id = sold.item_id group by part.original_item_id),
        bought as (
            select line.item_id, sum(line.qty) as qty, sum(line.total_price_amount) as cost
            from acquisition doc join acquisition_detail line on line.acquisition_id = doc.id
            where doc.purchase_date between :from and :to group by line.item_id),
        returned as (
            select line.item_id, sum(line.qty_returned) as qty, sum(line.total_price_amount) as cost
            from credit_note doc join credit_note_detail line on line.credit_note_id = doc.id
            where doc.credit_note_date between :from and :to and doc.status <> 4 group by line.item_id),
        figures as (
            select item.id, coalesce(bought.qty, 0) - coalesce(returned.qty, 0) as bought,
                   coalesce(bought.cost, 0) - coalesce(returned.cost, 0) as cost,
                   coalesce(sold.qty, 0) as sold, coalesce(components.qty, 0) as components
            from item left join sold on sold.item_id = item.id left join components on components.item_id = item.id
            left join bought on bought.item_id = item.id left join returned on returned.item_id = item.id
            where item.item_type = 1
              and (sold.qty <> 0 or components.qty <> 0 or bought.qty <> 0 or returned.qty <> 0))
        select %1, figures.bought, figures.cost, figures.sold, figures.components,
               figures.sold + figures.components as used,
               figures.bought - figures.sold - figures.components as difference,
               100 * (figures.sold + figures.components) / nullif(figures.bought, 0) as part
        from figures join item on item.id = figures.id %2 where true %3
        order by jenis_item.nama, item.nama, item.id)")
                       .arg(itemFields, itemJoins, Asked::item);
    report.columns = {Columns::itemType(),
                      Columns::code(),
                      Columns::item(),
                      Columns::unit(),
                      quantity("bought", QT_TRANSLATE_NOOP("Reports", "Bought")),
                      Column::money("cost", QT_TRANSLATE_NOOP("Reports", "Cost")).sum(),
                      quantity("sold", QT_TRANSLATE_NOOP("Reports", "Sold")),
                      quantity("components", QT_TRANSLATE_NOOP("Reports", "In grouped items")),
                      quantity("used", QT_TRANSLATE_NOOP("Reports", "Used")),
                      quantity("difference", QT_TRANSLATE_NOOP("Reports", "Not used")),
                      Column::percent("part", QT_TRANSLATE_NOOP("Reports", "Used %"))};
    report.group = "itemtype";
    return report;
}
} // namespace

QList<Report> GoodsLists::stockOfAPeriod() { return {movements(), journal(), adjustments(), usage()}; }
