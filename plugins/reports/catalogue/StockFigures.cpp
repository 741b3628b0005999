#include "reports/catalogue/StockFigures.h"

#include "reports/catalogue/PurchasePrice.h"

namespace StockFigures
{
QString moved(const QString& limit)
{
    // Summed before anything is joined to them: years of sales have millions of lines, but few items.
    return QString(R"(moved as materialized (
            select line.item_id, doc.purchase_date as day, sum(line.qty) as bought, 0 as sold, 0 as returned
            from acquisition doc join acquisition_detail line on line.acquisition_id = doc.id
            where doc.purchase_date <= %1 group by 1, 2
            union all
            select line.item_id, doc.invoice_date, 0, sum(line.qty), 0
            from invoice doc join invoice_detail line on line.invoice_id = doc.id
            where doc.invoice_date <= %1 group by 1, 2
            union all
            select line.item_id, doc.credit_note_date, 0, 0, sum(line.qty_returned)
            from credit_note doc join credit_note_detail line on line.credit_note_id = doc.id
            where doc.credit_note_date <= %1 and doc.status <> 4 group by 1, 2))")
        .arg(limit);
}

QString onHand(const QString& name, const QString& day)
{
    // What moved on the day of the count itself counts on top of it.
    return QString(R"(%1 as materialized (
            select item.id as item_id, take.tanggal as counted,
                   coalesce(take.qty, stok_awal.jumlah, 0) + coalesce(sum(bought - sold - returned), 0) as qty
            from item
            left join (select distinct on (item_id) item_id, tanggal, qty from stock_take where tanggal <= %2
                       order by item_id, tanggal desc, id desc) take on take.item_id = item.id
            left join stok_awal on stok_awal.item_id = item.id
            left join moved on moved.item_id = item.id and moved.day <= %2
                 and (take.tanggal is null or moved.day >= take.tanggal)
            group by item.id, take.tanggal, take.qty, stok_awal.jumlah))")
        .arg(name, day);
}

QString price(const QString& limit) { return "price as (" + PurchasePrice::lastUntil(limit) + ')'; }
} // namespace StockFigures
