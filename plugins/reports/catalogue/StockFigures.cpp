#include "reports/catalogue/StockFigures.h"

#include "pos/inventory/stock/StockOnHand.h"
#include "reports/catalogue/PurchasePrice.h"

namespace
{
/** One kind of movement in the period: inside, all of it, and since, what came on top of a count in the period. */
QString moved(const QString& name, const QString& document, const QString& date, const QString& quantity,
              const QString& condition = QString())
{
    return QString(R"(
        %1 as (
            select line.item_id, sum(line.%4) as inside,
                   sum(line.%4) filter (where doc.%3 >= closed.day) as since
            from %2 doc join %2_detail line on line.%2_id = doc.id
            left join closed on closed.item_id = line.item_id
            where doc.%3 between FIRST and LAST%5 group by line.item_id),)")
        .arg(name, document, date, quantity, condition);
}

/**
 * Tells if the item was bought or sold in the last days. It begins with the newest lines, and so ends at once for what
 * is sold every day; "offset 0" keeps that order.
 */
QString isMoving(const QString& document, const QString& date, const QString& limit = QString())
{
    return QString(R"(exists (
                select from (
                    select (select %2 from %1 where id = %1_id) as day from %1_detail
                    where item_id = item.id and qty <> 0%3 order by %1_id desc offset 0) line
                where line.day > DAY - AGO and line.day <= DAY))")
        .arg(document, date, limit);
}

/** The last day on which the item was bought or sold. */
QString lastMovement(const QString& document, const QString& date)
{
    return QString(R"((
                select max(line.day) from (
                    select (select %2 from %1 where id = %1_id) as day from %1_detail
                    where item_id = item.id and qty <> 0 offset 0) line
                where line.day <= DAY))")
        .arg(document, date);
}
} // namespace

namespace StockFigures
{
QString stock(const QString& day)
{
    return StockOnHand::parts("onhand", day) + ", stock as (select item_id, counted, " +
           StockOnHand::quantity("onhand") + " as closing from onhand)";
}

QString movements(const QString& firstDay, const QString& lastDay)
{
    QString text = StockOnHand::parts("opened", firstDay + " - 1") + ", closed as materialized (" +
                   StockOnHand::lastCounts("LAST") + ")," + moved("bought", "acquisition", "purchase_date", "qty") +
                   moved("sold", "invoice", "invoice_date", "qty") +
                   moved("returned", "credit_note", "credit_note_date", "qty_returned", " and doc.status <> 4") + R"(
        period as (
            select opened.item_id, OPENING as opening, coalesce(bought.inside, 0) as bought,
                   coalesce(sold.inside, 0) as sold, coalesce(returned.inside, 0) as returned,
                   closed.qty + coalesce(bought.since, 0) - coalesce(sold.since, 0) - coalesce(returned.since, 0)
                       as recounted, closed.day as counted
            from opened left join closed on closed.item_id = opened.item_id
            left join bought on bought.item_id = opened.item_id left join sold on sold.item_id = opened.item_id
            left join returned on returned.item_id = opened.item_id),
        stock as (
            select item_id, opening, bought, sold, returned,
                   case when counted >= FIRST then recounted else opening + bought - sold - returned end as closing
            from period))";
    text.replace("OPENING", StockOnHand::quantity("opened"));
    return text.replace("FIRST", firstDay).replace("LAST", lastDay);
}

QString idle(const QString& day, const QString& days)
{
    QString text = R"(
        resting as materialized (
            select item.id from stock join item on item.id = stock.item_id
            where item.item_type = 1 and stock.closing > 0 and not )" +
                   isMoving("acquisition", "purchase_date") + " and not " +
                   isMoving("invoice", "invoice_date", " and invoice_id <= (select id from onhand_last)") + R"(),
        idle as materialized (select item.id as item_id, )" +
                   lastMovement("acquisition", "purchase_date") + " as lastbought, " +
                   lastMovement("invoice", "invoice_date") + " as lastsold from resting item)";
    return text.replace("DAY", day).replace("AGO", days);
}

QString price(const QString& limit) { return "price as (" + PurchasePrice::lastUntil(limit) + ')'; }
} // namespace StockFigures
