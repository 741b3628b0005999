#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

using Column = ReportColumn;

namespace
{
const char* const sums = "count(*) as purchases, sum(doc.sub_total_amount) as subtotal, sum(doc.discount_amount) as "
                         "discount, sum(doc.tax_amount) as tax, sum(doc.grandtotal_amount) as total";

ReportColumn money(const QString& field, const char* title) { return Column::money(field, title).sum(); }
ReportColumn total() { return money("total", QT_TRANSLATE_NOOP("Reports", "Total")); }
ReportColumn due() { return money("due", QT_TRANSLATE_NOOP("Reports", "Net due")); }

QList<ReportColumn> sumColumns()
{
    return {Column::count("purchases", QT_TRANSLATE_NOOP("Reports", "Purchases")).sum(),
            money("subtotal", QT_TRANSLATE_NOOP("Reports", "Subtotal")),
            money("discount", QT_TRANSLATE_NOOP("Reports", "Discount")),
            money("tax", QT_TRANSLATE_NOOP("Reports", "Tax")), total()};
}

/** Purchases of the period, with supplier and user. */
QString purchasesOf(const QString& select, const QString& end)
{
    return "select " + select +
           " from acquisition doc join supplier on supplier.id = doc.supplier_id "
           "left join users on users.id = doc.createdby where doc.purchase_date between :from and :to " +
           Asked::supplier + end;
}

Report byDay()
{
    Report report;
    report.id = "purchases-by-day";
    report.title = QT_TRANSLATE_NOOP("Reports", "Purchases by day");
    report.about = QT_TRANSLATE_NOOP("Reports", "What was bought on each day, paid or not. Returns are not taken off.");
    report.parameters = {ReportParameter::period(), Questions::supplier()};
    report.query = purchasesOf(QString("doc.purchase_date as day, ") + sums, " group by 1 order by 1");
    report.columns = QList<ReportColumn>{Columns::day()} + sumColumns();
    report.chart = ReportChart::bars("day", {"total"});
    return report;
}

Report bySupplier()
{
    Report report;
    report.id = "purchases-by-supplier";
    report.title = QT_TRANSLATE_NOOP("Reports", "Purchases by supplier");
    report.about = QT_TRANSLATE_NOOP("Reports", "What was bought from each supplier, and what of it is still to be "
                                                "paid. Returns are not taken off the totals.");
    report.parameters = {ReportParameter::period(), Questions::supplier()};
    report.query = purchasesOf(QString("supplier.kode as code, supplier.nama as supplier, ") + sums +
                                   ", sum(doc.net_due_amount) as due, max(doc.purchase_date) as last",
                               " group by supplier.id order by total desc, supplier.nama, supplier.id");
    report.columns =
        QList<ReportColumn>{Columns::code(), Columns::supplier()} + sumColumns() +
        QList<ReportColumn>{Column::average("average", QT_TRANSLATE_NOOP("Reports", "Average"), "total", "purchases"),
                            due(), Column::date("last", QT_TRANSLATE_NOOP("Reports", "Last purchase"))};
    report.chart = ReportChart::ranking("supplier", "total");
    return report;
}

Report byItem()
{
    Report report;
    report.id = "purchases-by-item";
    report.title = QT_TRANSLATE_NOOP("Reports", "Purchases by item");
    report.about = QT_TRANSLATE_NOOP("Reports", "What was bought of each item at the prices of the lines: discount and "
                                                "tax of the whole purchase are not in it.");
    report.parameters = {ReportParameter::period(), Questions::supplier(), Questions::itemType(), Questions::item()};
    report.query = QString(R"(
        select jenis_item.nama as itemtype, item.kode as code, item.nama as name, satuan.kode as unit, bought.*
        from (select line.item_id, count(distinct doc.id) as purchases, sum(line.qty) as qty,
                     sum(line.total_price_amount) as total, min(line.price_each_amount) as lowest,
                     max(line.price_each_amount) as highest,
                     sum(line.total_price_amount) / nullif(sum(line.qty), 0) as average
              from acquisition doc join acquisition_detail line on line.acquisition_id = doc.id
              join supplier on supplier.id = doc.supplier_id
              where doc.purchase_date between :from and :to %1 group by line.item_id) bought
        join item on item.id = bought.item_id join jenis_item on jenis_item.id = item.jenis
        join satuan on satuan.id = item.satuan
        where true %2 order by bought.total desc, item.nama, item.id)")
                       .arg(Asked::supplier, Asked::item);
    report.columns = {Columns::itemType(),
                      Columns::code(),
                      Columns::item(),
                      Column::count("purchases", QT_TRANSLATE_NOOP("Reports", "Purchases")),
                      Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Quantity")),
                      Columns::unit(),
                      total(),
                      Column::money("lowest", QT_TRANSLATE_NOOP("Reports", "Lowest price")),
                      Column::money("highest", QT_TRANSLATE_NOOP("Reports", "Highest price")),
                      Column::money("average", QT_TRANSLATE_NOOP("Reports", "Average price"))};
    report.group = "itemtype";
    report.chart = ReportChart::ranking("name", "total");
    return report;
}

Report list()
{
    Report report;
    report.id = "purchases";
    report.title = QT_TRANSLATE_NOOP("Reports", "List of purchases");
    report.about = QT_TRANSLATE_NOOP("Reports", "Every purchase with what was paid at once, what was paid or credited "
                                                "later, and what is still due.");
    const ReportColumn status = Columns::paidStatus();
    report.parameters = {ReportParameter::period(), Questions::supplier(),
                         ReportParameter::choice("status", QT_TRANSLATE_NOOP("Reports", "Status:"), status.valueWords)};
    report.query =
        purchasesOf("doc.purchase_date as day, doc.no, doc.invoice_no as invoice, supplier.nama as supplier, "
                    "doc.due_date as duedate, doc.status, doc.grandtotal_amount as total, "
                    "doc.amount_paid_amount as paid, doc.other_payment_amount as later, "
                    "doc.net_due_amount as due, users.username",
                    " and (:status::integer is null or doc.status = :status::integer) "
                    "order by doc.purchase_date, doc.id");
    report.columns = {Columns::day(),
                      Columns::number(),
                      Column::text("invoice", QT_TRANSLATE_NOOP("Reports", "Invoice No.")),
                      Columns::supplier(),
                      Column::date("duedate", QT_TRANSLATE_NOOP("Reports", "Due date")),
                      status,
                      total(),
                      money("paid", QT_TRANSLATE_NOOP("Reports", "Paid")),
                      money("later", QT_TRANSLATE_NOOP("Reports", "Paid later")),
                      due(),
                      Columns::user()};
    return report;
}

Report priceHistory()
{
    Report report;
    report.id = "purchase-prices";
    report.title = QT_TRANSLATE_NOOP("Reports", "Price history by item");
    report.about = QT_TRANSLATE_NOOP("Reports", "What each supplier asked for an item from purchase to purchase. The "
                                                "change is against the item's purchase before, from whomever it was.");
    report.parameters = {ReportParameter::period(), Questions::item(), Questions::supplier(), Questions::itemType()};
    report.query = QString(R"(
        select item.nama as name, item.kode as code, prices.day, supplier.nama as supplier, prices.no, prices.qty,
               satuan.kode as unit, prices.price, prices.off, prices.net,
               100 * (prices.net - prices.before) / nullif(prices.before, 0) as change
        from (select *, lag(net) over (partition by item_id order by day, line_id) as before
              from (select line.item_id, line.id as line_id, doc.purchase_date as day, doc.supplier_id, doc.no, line.qty,
                           line.price_each_amount as price, line.discount_percentage as off,
                           line.total_price_amount / line.qty as net
                    from acquisition doc join acquisition_detail line on line.acquisition_id = doc.id
                    where line.qty > 0 and doc.purchase_date <= :to) lines) prices
        join item on item.id = prices.item_id join satuan on satuan.id = item.satuan
        join supplier on supplier.id = prices.supplier_id
        where prices.day >= :from %1 %2 order by item.nama, item.id, prices.day, prices.line_id)")
                       .arg(Asked::supplier, Asked::item);
    report.columns = {Columns::item(),
                      Columns::day(),
                      Columns::supplier(),
                      Columns::number(),
                      Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Quantity")),
                      Columns::unit(),
                      Column::money("price", QT_TRANSLATE_NOOP("Reports", "Price each")),
                      Column::percent("off", QT_TRANSLATE_NOOP("Reports", "Discount")),
                      Column::money("net", QT_TRANSLATE_NOOP("Reports", "Net price")),
                      Column::percent("change", QT_TRANSLATE_NOOP("Reports", "Change"))};
    report.group = "name";
    return report;
}
} // namespace

QList<Report> GoodsLists::purchases() { return {byDay(), bySupplier(), byItem(), list(), priceHistory()}; }

ReportSubject ReportCatalogue::purchasing()
{
    return {"Pembelian", QT_TRANSLATE_NOOP("Reports", "Purchases Reports"),
            GoodsLists::purchases() + GoodsLists::ordersAndReturns() + GoodsLists::payables()};
}
