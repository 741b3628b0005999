#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"
#include "reports/catalogue/StockFigures.h"

using Column = ReportColumn;

namespace
{
ReportParameter stockDay() { return ReportParameter::day("day", QT_TRANSLATE_NOOP("Reports", "On:")); }

/** A statement over "stock", the quantity on hand of the counted items at the day, and "price". */
QString stockOn(const QString& select, const QString& joins, const QString& condition, const QString& order)
{
    return "with " + StockFigures::moved(":day::date") + ", " + StockFigures::onHand("stock", ":day::date") + ", " +
           StockFigures::price(":day::date") +
           " select jenis_item.nama as itemtype, item.kode as code, item.nama as name, satuan.kode as unit, stock.qty, "
           "price.price, stock.qty * price.price as value" +
           select +
           " from stock join item on item.id = stock.item_id join price on price.item_id = item.id "
           "join jenis_item on jenis_item.id = item.jenis join satuan on satuan.id = item.satuan " +
           joins + " where item.item_type = 1 " + Asked::item + condition + order;
}

QList<ReportColumn> stockColumns()
{
    return {Columns::itemType(),
            Columns::code(),
            Columns::item(),
            Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "On hand")),
            Columns::unit(),
            Column::money("price", QT_TRANSLATE_NOOP("Reports", "Cost each")),
            Column::money("value", QT_TRANSLATE_NOOP("Reports", "Value")).sum()};
}

Report onHand()
{
    Report report;
    report.id = "stock-on-hand";
    report.title = QT_TRANSLATE_NOOP("Reports", "Stock on hand");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "What there was of each stock item at the end of the day, and its worth "
                                     "at the price of the last purchase until then, or at the item's unit "
                                     "cost where none was made.");
    report.parameters = {stockDay(), Questions::itemType(), Questions::item(),
                         ReportParameter::choice("amount", QT_TRANSLATE_NOOP("Reports", "Quantity:"),
                                                 {{"some", QT_TRANSLATE_NOOP("Reports", "More than zero")},
                                                  {"none", QT_TRANSLATE_NOOP("Reports", "Zero or below")}})};
    report.query = stockOn({}, {}, " and (:amount::text is null or (:amount::text = 'some') = (stock.qty > 0))",
                           " order by jenis_item.nama, item.nama, item.id");
    report.columns = stockColumns();
    report.group = "itemtype";
    report.chart = ReportChart::ranking("name", "value");
    return report;
}

Report negative()
{
    Report report;
    report.id = "stock-negative";
    report.title = QT_TRANSLATE_NOOP("Reports", "Negative stock");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "Items of which more was sold than there can have been: a purchase or a "
                                     "count was not entered, or a sale was entered on the wrong item.");
    report.parameters = {stockDay(), Questions::itemType(), Questions::item()};
    report.query =
        stockOn(", stock.counted, price.bought", {}, " and stock.qty < 0", " order by stock.qty, item.nama, item.id");
    report.columns =
        stockColumns() + QList<ReportColumn>{Column::date("counted", QT_TRANSLATE_NOOP("Reports", "Last counted")),
                                             Column::date("bought", QT_TRANSLATE_NOOP("Reports", "Last purchase"))};
    return report;
}

Report idle()
{
    Report report;
    report.id = "stock-idle";
    report.title = QT_TRANSLATE_NOOP("Reports", "Idle stock");
    report.about = QT_TRANSLATE_NOOP("Reports", "What there is of items that were neither sold nor bought for so many "
                                                "days: money that lies in the storeroom.");
    report.parameters = {stockDay(), ReportParameter::number("days", QT_TRANSLATE_NOOP("Reports", "Idle days:"), 60),
                         Questions::itemType(), Questions::item()};
    // An item that never moved has lain there since its beginning balance.
    report.query = stockOn(", last.sold, last.bought, :day::date - last.moved as idle",
                           "join (select item.id, max(day) filter (where moved.sold <> 0) as sold, max(day) filter "
                           "(where moved.bought <> 0) as bought, coalesce(max(day) filter (where moved.returned = 0), "
                           "max(stok_awal.createdtime)::date) as moved from item left join moved on moved.item_id = "
                           "item.id left join stok_awal on stok_awal.item_id = item.id group by item.id) last "
                           "on last.id = item.id",
                           " and stock.qty > 0 and (last.moved is null or :day::date - last.moved >= :days::integer)",
                           " order by idle desc nulls first, value desc, item.id");
    report.columns =
        stockColumns() + QList<ReportColumn>{Column::date("sold", QT_TRANSLATE_NOOP("Reports", "Last sold")),
                                             Column::date("bought", QT_TRANSLATE_NOOP("Reports", "Last purchase")),
                                             Column::count("idle", QT_TRANSLATE_NOOP("Reports", "Idle days"))};
    report.chart = ReportChart::ranking("name", "value");
    return report;
}
} // namespace

QList<Report> GoodsLists::stockAtADay() { return {onHand(), negative(), idle()}; }

ReportSubject ReportCatalogue::stock()
{
    return {"Persediaan", QT_TRANSLATE_NOOP("Reports", "Inventory Reports"),
            GoodsLists::stockAtADay() + GoodsLists::stockOfAPeriod()};
}
