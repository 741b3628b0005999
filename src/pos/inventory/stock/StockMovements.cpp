#include "pos/inventory/stock/StockMovements.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorQuery.h"

#include <QSqlRecord>

namespace
{
/** The status of a cancelled credit note, which does not move stock. */
constexpr int cancelledNote = 4;

const char* const heads[] = {
    "Select SUM(acquisition_detail.qty) as QuantityAcq from acquisition inner join acquisition_detail on "
    "acquisition.id = acquisition_detail.acquisition_id where item_id = :item_id and purchase_date",
    "Select SUM(invoice_detail.qty) as QuantityUsed from invoice inner join invoice_detail on "
    "invoice.id = invoice_detail.invoice_id where item_id = :item_id and invoice_date",
    "Select SUM(credit_note_detail.qty_returned) as QuantityCredit from credit_note inner join credit_note_detail on "
    "credit_note.id = credit_note_detail.credit_note_id where status <> :status_canceled and item_id = :item_id and "
    "credit_note_date",
};

/** The SQL of one kind of movement, summed by item since the item's last adjustment or from the beginning. */
QString movedByItem(const QString& master, const QString& line, const QString& key, const QString& quantity,
                    const QString& date, const QString& condition = QString())
{
    return "(select line.item_id, sum(line." + quantity + ") as qty from " + master + " inner join " + line +
           " line on " + master + ".id = line." + key + " left join take on take.item_id = line.item_id where " +
           master + '.' + date + " <= :date and (take.tanggal is null or " + master + '.' + date + " >= take.tanggal)" +
           condition + " group by line.item_id)";
}
} // namespace

QString StockMovements::statement(Kind kind, bool isPeriod)
{
    return QLatin1String(heads[kind]) + QLatin1String(isPeriod ? " between :startdate  and :enddate" : " <= :date  ");
}

bool StockMovements::quantity(KorQuery& query, Kind kind, int itemId, const QDate& start, const QDate& end,
                              int& quantity)
{
    const bool isPeriod = start.isValid();
    query.prepare(statement(kind, isPeriod));
    query.bindValue(":item_id", itemId);
    if (isPeriod) {
        query.bindValue(":startdate", KorDataMapper::dateToSql(start));
        query.bindValue(":enddate", KorDataMapper::dateToSql(end));
    } else {
        query.bindValue(":date", KorDataMapper::dateToSql(end));
    }
    if (kind == Returned)
        query.bindValue(":status_canceled", cancelledNote);
    if (!query.exec())
        return false;
    // The sum of no lines is NULL, which becomes 0.
    quantity = query.next() ? query.value(0).toInt() : 0;
    return true;
}

QString StockMovements::onHandStatement()
{
    return "with take as (select distinct on (item_id) item_id, tanggal, qty from stock_take where tanggal <= :date "
           "order by item_id, tanggal desc, id desc) "
           "select item.id, coalesce(take.qty, stok_awal.jumlah, 0) + coalesce(acquired.qty, 0) - "
           "coalesce(used.qty, 0) - coalesce(returned.qty, 0) from item "
           "left join take on take.item_id = item.id left join stok_awal on stok_awal.item_id = item.id left join " +
           movedByItem("acquisition", "acquisition_detail", "acquisition_id", "qty", "purchase_date") +
           " acquired on acquired.item_id = item.id left join " +
           movedByItem("invoice", "invoice_detail", "invoice_id", "qty", "invoice_date") +
           " used on used.item_id = item.id left join " +
           movedByItem("credit_note", "credit_note_detail", "credit_note_id", "qty_returned", "credit_note_date",
                       " and credit_note.status <> :status_canceled") +
           " returned on returned.item_id = item.id";
}

bool StockMovements::onHand(KorQuery& query, const QDate& date, QHash<int, int>& quantities)
{
    query.prepare(onHandStatement());
    query.bindValue(":date", KorDataMapper::dateToSql(date));
    query.bindValue(":status_canceled", cancelledNote);
    if (!query.exec())
        return false;
    while (query.next())
        quantities.insert(query.value(0).toInt(), query.value(1).toInt());
    return true;
}
