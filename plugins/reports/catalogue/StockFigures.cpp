#include "reports/catalogue/StockFigures.h"

#include "reports/catalogue/PurchasePrice.h"

namespace
{
/** The last count of each item up to the day; of two counts on one day, the one entered last. */
QString counts(const QString& name, const QString& day)
{
    return QString("%1 as (select distinct on (item_id) item_id, tanggal as day, qty from stock_take where tanggal <= "
                   "%2 order by item_id, tanggal desc, id desc)")
        .arg(name, day);
}

/**
 * One kind of movement, one row per item, in one scan of the documents, because years of sales have millions of lines.
 * Movements on the day of the count are added to the count.
 */
QString moved(const QString& name, const QString& document, const QString& date, const QString& quantity,
              const QString& lastDay, const QString& firstDay, const QString& condition = QString())
{
    const QString period =
        firstDay.isEmpty() ? QString()
                           : QString(", sum(line.%1) filter (where doc.%2 < %3 and (opened.day is null or doc.%2 >= "
                                     "opened.day)) as before, sum(line.%1) filter (where doc.%2 >= %3) as inside")
                                 .arg(quantity, date, firstDay);
    return QString(R"(%1 as (
            select line.item_id, max(doc.%3) filter (where line.%4 <> 0) as last,
                   sum(line.%4) filter (where closed.day is null or doc.%3 >= closed.day) as until %5
            from %2 doc join %2_detail line on line.%2_id = doc.id
            left join closed on closed.item_id = line.item_id %6
            where doc.%3 <= %7 %8 group by line.item_id))")
        .arg(name, document, date, quantity, period,
             firstDay.isEmpty() ? QString() : "left join opened on opened.item_id = line.item_id", lastDay, condition);
}

/** The quantity: the count or the beginning balance, plus movements since. */
QString quantity(const QString& counted, const QString& field)
{
    return QString("coalesce(%1.qty, stok_awal.jumlah, 0) + coalesce(bought.%2, 0) - coalesce(sold.%2, 0) - "
                   "coalesce(returned.%2, 0)")
        .arg(counted, field);
}
} // namespace

namespace StockFigures
{
QString stock(const QString& lastDay, const QString& firstDay)
{
    const bool isPeriod = !firstDay.isEmpty();
    return counts("closed", lastDay) + ", " + (isPeriod ? counts("opened", firstDay + " - 1") + ", " : QString()) +
           moved("bought", "acquisition", "purchase_date", "qty", lastDay, firstDay) + ", " +
           moved("sold", "invoice", "invoice_date", "qty", lastDay, firstDay) + ", " +
           moved("returned", "credit_note", "credit_note_date", "qty_returned", lastDay, firstDay,
                 "and doc.status <> 4") +
           ", stock as (select item.id as item_id, closed.day as counted, bought.last as lastbought, sold.last as "
           "lastsold, " +
           quantity("closed", "until") + " as closing" +
           (isPeriod ? ", " + quantity("opened", "before") +
                           " as opening, coalesce(bought.inside, 0) as bought, coalesce(sold.inside, 0) as sold, "
                           "coalesce(returned.inside, 0) as returned"
                     : QString()) +
           " from item left join stok_awal on stok_awal.item_id = item.id "
           "left join closed on closed.item_id = item.id left join bought on bought.item_id = item.id "
           "left join sold on sold.item_id = item.id left join returned on returned.item_id = item.id" +
           (isPeriod ? " left join opened on opened.item_id = item.id)" : ")");
}

QString price(const QString& limit) { return "price as (" + PurchasePrice::lastUntil(limit) + ')'; }
} // namespace StockFigures
