#include "pos/inventory/stock/StockMovements.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorQuery.h"
#include "pos/inventory/stock/StockOnHand.h"

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

/** The row of a query of onHandStatement(). */
StockMovements::OnHand onHandOf(const KorQuery& query)
{
    return {query.value(1).toInt(), query.value(2).toInt(), query.value(3).toInt(), query.value(4).toInt()};
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

QString StockMovements::onHandStatement(bool isOfOneItem)
{
    return "with " + StockOnHand::parts("stock", ":date::date", isOfOneItem ? ":item_id::bigint" : QString()) +
           " select item_id, base, acquired, used, returned from stock";
}

bool StockMovements::onHand(KorQuery& query, const QDate& date, QHash<int, int>& quantities)
{
    query.prepare(onHandStatement());
    query.bindValue(":date", KorDataMapper::dateToSql(date));
    if (!query.exec())
        return false;
    while (query.next())
        quantities.insert(query.value(0).toInt(), onHandOf(query).quantity());
    return true;
}

bool StockMovements::onHand(KorQuery& query, int itemId, const QDate& date, OnHand& figures)
{
    query.prepare(onHandStatement(true));
    query.bindValue(":item_id", itemId);
    query.bindValue(":date", KorDataMapper::dateToSql(date));
    if (!query.exec())
        return false;
    figures = query.next() ? onHandOf(query) : OnHand();
    return true;
}
