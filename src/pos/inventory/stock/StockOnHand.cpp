#include "pos/inventory/stock/StockOnHand.h"

namespace
{
/** Limits the column to the item, if there is one. */
QString onlyItem(const QString& column, const QString& item)
{
    return item.isEmpty() ? QString() : " and " + column + " = " + item;
}

/** The first invoice since the day of each count, and the last one up to the asked day. */
QString invoiceLimits()
{
    return R"(
        NAME_first as materialized (
            select invoice_date as day, min(id) as id from invoice
            where invoice_date >= (select min(day) from NAME_take) and invoice_date <= DAY group by invoice_date),
        NAME_since as materialized (
            select day, (select min(first.id) from NAME_first first where first.day >= counted.day) as id
            from (select distinct day from NAME_take) counted),
        NAME_last as materialized (select max(id) as id from invoice where invoice_date <= DAY),)";
}

/**
 * What was sold. The invoices that are left over are few, so each is looked up by itself: "offset 0" and the select
 * within the condition keep the server from reading all invoices instead.
 */
QString sold(const QString& item)
{
    return R"(
        NAME_later as materialized (
            select line.item_id, sum(line.qty) as qty from invoice doc cross join lateral (
                select item_id, qty from invoice_detail
                where invoice_id = doc.id)" +
           onlyItem("item_id", item) + R"( offset 0) line
            where doc.invoice_date > DAY and doc.id < (select id from NAME_last) group by line.item_id),
        NAME_used as (
            select item.id as item_id, case when take.day is null then (
                select sum(line.qty) from invoice_detail line
                where line.item_id = item.id and line.invoice_id <= (select id from NAME_last)) -
                    coalesce(later.qty, 0)
            else (
                select sum(line.qty) from invoice_detail line
                where line.item_id = item.id and line.invoice_id >= since.id
                and line.invoice_id <= (select id from NAME_last) and (
                    select doc.invoice_date between take.day and DAY from invoice doc where doc.id = line.invoice_id))
            end as qty
            from item left join NAME_take take on take.item_id = item.id left join NAME_since since
            on since.day = take.day left join NAME_later later on later.item_id = item.id
            where true)" +
           onlyItem("item.id", item) + "),";
}

/** Purchases and returns, which are few beside the sales. */
QString moved(const QString& name, const QString& document, const QString& date, const QString& quantity,
              const QString& condition)
{
    return QString(R"(
        NAME_%1 as (
            select line.item_id, sum(line.%4) as qty from %2 doc join %2_detail line on line.%2_id = doc.id
            left join NAME_take take on take.item_id = line.item_id
            where doc.%3 <= DAY and (take.day is null or doc.%3 >= take.day)%5 group by line.item_id),)")
        .arg(name, document, date, quantity, condition);
}
} // namespace

namespace StockOnHand
{
QString lastCounts(const QString& day, const QString& item)
{
    return "select distinct on (item_id) item_id, tanggal as day, qty from stock_take where tanggal <= " + day +
           onlyItem("item_id", item) + " order by item_id, tanggal desc, id desc";
}

QString parts(const QString& name, const QString& day, const QString& item)
{
    const QString ofItem = onlyItem("line.item_id", item);
    QString text =
        "NAME_take as materialized (" + lastCounts("DAY", item) + ")," + invoiceLimits() + sold(item) +
        moved("acquired", "acquisition", "purchase_date", "qty", ofItem) +
        moved("returned", "credit_note", "credit_note_date", "qty_returned", " and doc.status <> 4" + ofItem) + R"(
        NAME as (
            select item.id as item_id, take.day as counted, coalesce(take.qty, stok_awal.jumlah, 0) as base,
                   coalesce(acquired.qty, 0) as acquired, coalesce(used.qty, 0) as used,
                   coalesce(returned.qty, 0) as returned
            from item left join stok_awal on stok_awal.item_id = item.id
            left join NAME_take take on take.item_id = item.id left join NAME_used used on used.item_id = item.id
            left join NAME_acquired acquired on acquired.item_id = item.id
            left join NAME_returned returned on returned.item_id = item.id where true)" +
        onlyItem("item.id", item) + ")";
    return text.replace("NAME", name).replace("DAY", day);
}

QString quantity(const QString& name) { return QString("%1.base + %1.acquired - %1.used - %1.returned").arg(name); }
} // namespace StockOnHand
