#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"
#include "reports/catalogue/PurchasePrice.h"
#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

using Column = ReportColumn;

namespace
{
ReportColumn name() { return Column::text("name", QT_TRANSLATE_NOOP("Reports", "Name")); }

const char* const itemJoins = " join jenis_item on jenis_item.id = item.jenis join satuan on satuan.id = item.satuan ";
const char* const itemFields = "jenis_item.nama as itemtype, item.kode as code, item.nama as name, satuan.kode as unit";
const char* const itemOrder = " order by jenis_item.nama, item.nama, item.id";

ReportColumn itemClass()
{
    return Column::text("class", QT_TRANSLATE_NOOP("Reports", "Class"))
        .words({{1, QT_TRANSLATE_NOOP("Reports", "Stock")}, {2, QT_TRANSLATE_NOOP("Reports", "Menu or service")}});
}

Report itemPrices()
{
    Report report;
    report.id = "items";
    report.title = QT_TRANSLATE_NOOP("Reports", "Items and prices");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "Every item with its unit cost, the price of its last purchase, and the "
                                     "margin that its sales price leaves over the unit cost.");
    report.parameters = {
        Questions::itemType(), Questions::item(),
        ReportParameter::choice("class", QT_TRANSLATE_NOOP("Reports", "Class:"), itemClass().valueWords)};
    report.query = QString("select ") + itemFields +
                   ", item.item_type as class, item.harga_beli_amount as cost, item.harga_jual_lokal_amount as sale, "
                   "item.harga_jual_lokal_amount - item.harga_beli_amount as margin, "
                   "case when price.bought is not null then price.price end as price, price.bought "
                   "from item join (" +
                   PurchasePrice::lastUntil("current_date") + ") price on price.item_id = item.id " + itemJoins +
                   "where (:class::integer is null or item.item_type = :class::integer) " + Asked::item + itemOrder;
    report.columns = {Columns::itemType(),
                      Columns::code(),
                      Columns::item(),
                      Columns::unit(),
                      itemClass(),
                      Column::money("cost", QT_TRANSLATE_NOOP("Reports", "Unit cost")),
                      Column::money("price", QT_TRANSLATE_NOOP("Reports", "Last bought at")),
                      Column::date("bought", QT_TRANSLATE_NOOP("Reports", "Last purchase")),
                      Column::money("sale", QT_TRANSLATE_NOOP("Reports", "Sales price")),
                      Column::money("margin", QT_TRANSLATE_NOOP("Reports", "Margin")),
                      Column::share("percent", QT_TRANSLATE_NOOP("Reports", "Margin %"), "margin", "sale")};
    report.group = "itemtype";
    return report;
}

Report itemAccounts()
{
    Report report;
    report.id = "item-accounts";
    report.title = QT_TRANSLATE_NOOP("Reports", "Items and accounts");
    report.about = QT_TRANSLATE_NOOP("Reports", "The accounts that each item's sales, stock and cost are booked on.");
    report.parameters = {Questions::itemType(), Questions::item(), Questions::account()};
    report.query = QString("select ") + itemFields +
                   R"(, item.item_type as class, sales.kode || ' ' || sales.nama as sales,
               stock.kode || ' ' || stock.nama as stock, cost.kode || ' ' || cost.nama as cost
        from item left join bank sales on sales.kode = item.sales_acct_code
        left join bank stock on stock.kode = item.inventory_acct_code
        left join bank cost on cost.kode = item.cost_of_sales_acct_code)" +
                   itemJoins + R"(where (:account::text is null or :account::text in
            (item.sales_acct_code, item.inventory_acct_code, item.cost_of_sales_acct_code)))" +
                   Asked::item + itemOrder;
    report.columns = {Columns::itemType(),
                      Columns::code(),
                      Columns::item(),
                      itemClass(),
                      Column::text("sales", QT_TRANSLATE_NOOP("Reports", "Sales account")),
                      Column::text("stock", QT_TRANSLATE_NOOP("Reports", "Inventory account")),
                      Column::text("cost", QT_TRANSLATE_NOOP("Reports", "Cost of sales account"))};
    return report;
}

Report components()
{
    Report report;
    report.id = "item-components";
    report.title = QT_TRANSLATE_NOOP("Reports", "Components of grouped items");
    report.about = QT_TRANSLATE_NOOP("Reports", "What each grouped item is made of, and what that costs at the "
                                                "components' unit costs.");
    report.parameters = {Questions::item(), Questions::itemType()};
    report.query = QString(R"(
        select item.nama as whole, item.harga_jual_lokal_amount as sale, part.kode as code, part.nama as name,
               grouped_item.jumlah as qty, satuan.kode as unit, part.harga_beli_amount as price,
               grouped_item.jumlah * part.harga_beli_amount as cost
        from grouped_item join item on item.id = grouped_item.parent_id
        join item part on part.id = grouped_item.original_item_id join satuan on satuan.id = part.satuan
        where true %1 order by item.nama, item.id, grouped_item.id)")
                       .arg(Asked::item);
    report.columns = {Column::text("whole", QT_TRANSLATE_NOOP("Reports", "Grouped item")),
                      Column::money("sale", QT_TRANSLATE_NOOP("Reports", "Sales price")),
                      Columns::code(),
                      Column::text("name", QT_TRANSLATE_NOOP("Reports", "Component")),
                      Column::quantity("qty", QT_TRANSLATE_NOOP("Reports", "Quantity")),
                      Columns::unit(),
                      Column::money("price", QT_TRANSLATE_NOOP("Reports", "Unit cost")),
                      Column::money("cost", QT_TRANSLATE_NOOP("Reports", "Cost")).sum()};
    report.group = "whole";
    return report;
}

Report accounts()
{
    Report report;
    report.id = "accounts";
    report.title = QT_TRANSLATE_NOOP("Reports", "Accounts");
    report.about = QT_TRANSLATE_NOOP("Reports", "The ledger's accounts by their types.");
    const QList<QPair<QVariant, const char*>> types{{1, QT_TRANSLATE_NOOP("Reports", "Cash")},
                                                    {2, QT_TRANSLATE_NOOP("Reports", "Accounts payable")},
                                                    {3, QT_TRANSLATE_NOOP("Reports", "Accounts receivable")},
                                                    {4, QT_TRANSLATE_NOOP("Reports", "Income")},
                                                    {5, QT_TRANSLATE_NOOP("Reports", "Expense")},
                                                    {6, QT_TRANSLATE_NOOP("Reports", "Assets")},
                                                    {7, QT_TRANSLATE_NOOP("Reports", "Other current liabilities")},
                                                    {8, QT_TRANSLATE_NOOP("Reports", "Inventory")},
                                                    {9, QT_TRANSLATE_NOOP("Reports", "Cost of sales")}};
    report.parameters = {ReportParameter::choice("kind", QT_TRANSLATE_NOOP("Reports", "Type of account:"), types)};
    report.query = "select kode as code, nama as name, account_type as kind, active from bank "
                   "where (:kind::integer is null or account_type = :kind::integer) order by kode";
    report.columns = {
        Columns::code(), name(), Column::text("kind", QT_TRANSLATE_NOOP("Reports", "Type of account")).words(types),
        Column::text("active", QT_TRANSLATE_NOOP("Reports", "Active"))
            .words({{true, QT_TRANSLATE_NOOP("Reports", "Yes")}, {false, QT_TRANSLATE_NOOP("Reports", "No")}})};
    return report;
}

Report tables()
{
    Report report;
    report.id = "tables";
    report.title = QT_TRANSLATE_NOOP("Reports", "Tables");
    report.about = QT_TRANSLATE_NOOP("Reports", "The tables of the restaurant.");
    report.query = "select kode as code, nama as name from meja order by kode";
    report.columns = {Columns::code(), name()};
    return report;
}

/** A list such as units or item types, with the number of items in each. */
Report itemList(const QString& id, const char* title, const char* about, const QString& table, const QString& column)
{
    Report report;
    report.id = id;
    report.title = title;
    report.about = about;
    report.query =
        QString("select %1.kode as code, %1.nama as name, count(item.id) filter (where item.item_type = 1) "
                "as stock, count(item.id) filter (where item.item_type <> 1) as menu, count(item.id) as items "
                "from %1 left join item on item.%2 = %1.id group by %1.id order by %1.kode")
            .arg(table, column);
    report.columns = {Columns::code(), name(),
                      Column::count("stock", QT_TRANSLATE_NOOP("Reports", "Stock items")).sum(),
                      Column::count("menu", QT_TRANSLATE_NOOP("Reports", "Menu and service items")).sum(),
                      Column::count("items", QT_TRANSLATE_NOOP("Reports", "Items")).sum()};
    return report;
}
} // namespace

QList<Report> GoodsLists::items()
{
    return {itemPrices(), itemAccounts(), components(),
            itemList("item-types", QT_TRANSLATE_NOOP("Reports", "Item types"),
                     QT_TRANSLATE_NOOP("Reports", "The kinds of items, and how many items are of each."), "jenis_item",
                     "jenis"),
            itemList("units", QT_TRANSLATE_NOOP("Reports", "Units"),
                     QT_TRANSLATE_NOOP("Reports", "The units that items are counted in, and how many items use each."),
                     "satuan", "satuan")};
}

QList<Report> GoodsLists::lists() { return {accounts(), tables()}; }

ReportSubject ReportCatalogue::masterData()
{
    return {"Master Data", QT_TRANSLATE_NOOP("Reports", "Master Data Reports"),
            GoodsLists::items() + GoodsLists::contacts() + GoodsLists::lists() + GoodsLists::users()};
}
