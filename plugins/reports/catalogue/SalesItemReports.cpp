#include "reports/catalogue/PurchasePrice.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/SalesLists.h"

using Column = ReportColumn;

namespace
{
/**
 * The sums per item, as "lines", and the rest of the statement. Summed before joining the items, because years of sales
 * have millions of lines but few items.
 */
QString soldItems(const QString& with, const QString& select, const QString& joins, const QString& end)
{
    return "with lines as (select d.item_id, sum(d.qty) as qty, sum(d.total_amount) as total "
           "from invoice i join invoice_detail d on d.invoice_id = i.id "
           "where i.invoice_date between :from and :to and (:type::text is null or i.invoice_type = :type) group by "
           "1)" +
           with + " select " + select +
           " from lines join item on item.id = lines.item_id join jenis_item on jenis_item.id = item.jenis "
           "join satuan on satuan.id = item.satuan " +
           joins +
           " where (:itemtype::bigint is null or item.jenis = :itemtype::bigint) "
           "and (:item::text is null or lower(item.kode) like :item or lower(item.nama) like :item) " +
           end;
}

Report ofItems(const QString& id, const char* title, const char* about)
{
    Report report;
    report.id = id;
    report.title = title;
    report.about = about;
    report.parameters = {ReportParameter::period(), Questions::saleType(), Questions::itemType(), Questions::item()};
    return report;
}

ReportColumn total() { return Column::money("total", QT_TRANSLATE_NOOP("Reports", "Total")).sum(); }
ReportColumn share() { return Column::percent("share", QT_TRANSLATE_NOOP("Reports", "Share")).sum(); }

/** The item and the quantity sold. */
QList<ReportColumn> itemColumns()
{
    return {Column::text("itemtype", QT_TRANSLATE_NOOP("Reports", "Item type")),
            Column::text("code", QT_TRANSLATE_NOOP("Reports", "Code")),
            Column::text("name", QT_TRANSLATE_NOOP("Reports", "Item")),
            Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Sold")).sum()};
}
const char* const itemFields = "jenis_item.nama as itemtype, item.kode as code, item.nama as name, qty, total";

Report byItem()
{
    Report report = ofItems(
        "sales-by-item", QT_TRANSLATE_NOOP("Reports", "Sales by item"),
        QT_TRANSLATE_NOOP("Reports", "What was sold of each item, at the prices of the lines: discount, tax and "
                                     "service of the whole invoice are not in it."));
    report.query = soldItems({},
                             itemFields + QString(", satuan.kode as unit, 100 * total / nullif(sum(total) over (), "
                                                  "0) as share"),
                             {}, "order by total desc, item.kode");
    report.columns = itemColumns() +
                     QList<ReportColumn>{
                         Column::text("unit", QT_TRANSLATE_NOOP("Reports", "Unit")), total(),
                         Column::average("each", QT_TRANSLATE_NOOP("Reports", "Price each"), "total", "qty"), share()};
    report.group = "itemtype";
    report.chart = ReportChart::ranking("name", "total");
    return report;
}

Report byItemType()
{
    Report report = ofItems(
        "sales-by-item-type", QT_TRANSLATE_NOOP("Reports", "Sales by item type"),
        QT_TRANSLATE_NOOP("Reports", "What the kinds of items bring, at the prices of the lines: discount, tax and "
                                     "service of the whole invoice are not in it."));
    report.query =
        soldItems({},
                  "jenis_item.nama as itemtype, count(*) as items, sum(qty)::bigint as qty, sum(total) as total, "
                  "100 * sum(total) / nullif(sum(sum(total)) over (), 0) as share",
                  {}, "group by jenis_item.id, jenis_item.nama order by total desc, 1");
    report.columns = {Column::text("itemtype", QT_TRANSLATE_NOOP("Reports", "Item type")),
                      Column::count("items", QT_TRANSLATE_NOOP("Reports", "Different items")).sum(),
                      Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Sold")).sum(), total(), share()};
    report.chart = ReportChart::ranking("itemtype", "total");
    return report;
}

Report margin()
{
    Report report =
        ofItems("sales-margin", QT_TRANSLATE_NOOP("Reports", "Margin by item"),
                QT_TRANSLATE_NOOP("Reports",
                                  "What remains of the sales of each item after its cost: the price of its last "
                                  "purchase up to the end of the period, before discounts of that purchase, or the "
                                  "item's unit cost where none was made. Discounts of whole invoices are not in it."));
    report.query =
        soldItems(", prices as (" + PurchasePrice::lastUntil(":to") + ')',
                  itemFields + QString(", price, bought, qty * price as cost, total - qty * price as margin"),
                  "join prices on prices.item_id = item.id", "order by margin desc, item.kode");
    report.columns =
        itemColumns() +
        QList<ReportColumn>{total(),
                            Column::money("price", QT_TRANSLATE_NOOP("Reports", "Cost each")),
                            Column::date("bought", QT_TRANSLATE_NOOP("Reports", "Last purchase")),
                            Column::money("cost", QT_TRANSLATE_NOOP("Reports", "Cost")).sum(),
                            Column::money("margin", QT_TRANSLATE_NOOP("Reports", "Margin")).sum(),
                            Column::share("percent", QT_TRANSLATE_NOOP("Reports", "Margin %"), "margin", "total")};
    report.group = "itemtype";
    report.chart = ReportChart::ranking("name", "margin");
    return report;
}
} // namespace

QList<Report> SalesLists::byItem() { return {::byItem(), byItemType(), margin()}; }
