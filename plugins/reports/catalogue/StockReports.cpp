#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"
#include "reports/catalogue/StockFigures.h"

using Column = ReportColumn;

namespace
{
ReportParameter stockDay() { return ReportParameter::day("day", QT_TRANSLATE_NOOP("Reports", "On:")); }

/** Stock items at the end of the day, from "stock", "price" and further parts. */
QString stockOn(const QString& select, const QString& joins, const QString& condition, const QString& order,
                const QString& parts = QString())
{
    return "with " + StockFigures::stock(":day::date") + ", " + StockFigures::price(":day::date") + parts +
           " select jenis_item.nama as itemtype, item.kode as code, item.nama as name, satuan.kode as unit, "
           "stock.closing as qty, price.price, stock.closing * price.price as value" +
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
    report.query = stockOn({}, {}, " and (:amount::text is null or (:amount::text = 'some') = (stock.closing > 0))",
                           " order by jenis_item.nama, item.nama, item.id");
    report.columns = stockColumns();
    report.group = "itemtype";
    report.chart = ReportChart::ranking("itemtype", "value");
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
    report.query = stockOn(", stock.counted, price.bought", {}, " and stock.closing < 0",
                           " order by stock.closing, item.nama, item.id");
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
    // For an item that never moved, the day of its beginning balance is used.
    report.query = stockOn(", idle.lastsold, idle.lastbought, :day::date - moved.day as idle",
                           "join idle on idle.item_id = item.id left join stok_awal on stok_awal.item_id = item.id "
                           "cross join lateral (select coalesce(greatest(idle.lastsold, idle.lastbought), "
                           "stok_awal.createdtime::date) as day) moved",
                           " and (moved.day is null or :day::date - moved.day >= :days::integer)",
                           " order by idle desc nulls first, value desc, item.id",
                           ", " + StockFigures::idle(":day::date", ":days::integer"));
    report.columns =
        stockColumns() + QList<ReportColumn>{Column::date("lastsold", QT_TRANSLATE_NOOP("Reports", "Last sold")),
                                             Column::date("lastbought", QT_TRANSLATE_NOOP("Reports", "Last purchase")),
                                             Column::count("idle", QT_TRANSLATE_NOOP("Reports", "Idle days"))};
    report.chart = ReportChart::ranking("itemtype", "value");
    return report;
}
} // namespace

QList<Report> GoodsLists::stockAtADay() { return {onHand(), negative(), idle()}; }

ReportSubject ReportCatalogue::stock()
{
    return {"Persediaan", QT_TRANSLATE_NOOP("Reports", "Inventory Reports"),
            GoodsLists::stockAtADay() + GoodsLists::stockOfAPeriod()};
}
