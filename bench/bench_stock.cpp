#include "BenchMain.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/masterdata/item/TabItem.h"
#include "support/ShopRows.h"
#include "support/StockRows.h"

#include <QApplication>
#include <QTableView>

// The stock of 5,000 items after 200,000 invoice lines and 20,000 purchase lines: the figures, and the item page that
// shows them. By hand, both measure only the figures.

namespace
{
constexpr int itemCount = 5000;

/** A straightforward statement, written independently of the program's own. */
constexpr char stockByHand[] =
    "with base as (select item.id, take.tanggal as since, coalesce(take.qty, stok_awal.jumlah, 0) as qty from item "
    "left join stok_awal on stok_awal.item_id = item.id left join lateral (select tanggal, qty from stock_take where "
    "item_id = item.id and tanggal <= current_date order by tanggal desc, id desc limit 1) take on true), "
    "moved as (select item_id, purchase_date as day, qty from acquisition join acquisition_detail on "
    "acquisition.id = acquisition_id union all select item_id, invoice_date, -qty from invoice join invoice_detail "
    "on invoice.id = invoice_id union all select item_id, credit_note_date, -qty_returned from credit_note join "
    "credit_note_detail on credit_note.id = credit_note_id where status <> 4) "
    "select base.id, base.qty + coalesce(sum(moved.qty), 0) from base left join moved on moved.item_id = base.id and "
    "day <= current_date and (since is null or day >= since) group by base.id, base.qty";

void expect(int rows)
{
    if (rows != itemCount)
        qFatal("the stock has %d rows", rows);
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    insertShop(database);
    insertManyMovements(database, itemCount);
    byHand.prepare("stock", stockByHand);
    const auto figuresByHand = [&byHand] {
        expect(static_cast<int>(ByHand::rows(byHand.execute("stock").get()).size()));
    };
    enter({"Reckon the stock of 5,000 items",
           [] { expect(service<BusinessInventory>("Inventory")->quantitiesOnHand(QDate::currentDate()).size()); },
           figuresByHand, [] {}, 5});
    enter({"Open the page of 5,000 items, until their stock is there",
           [] {
               TabItem page;
               page.resize(1000, 700);
               page.show();
               const auto* rows = page.findChild<QTableView*>("tblItem")->model();
               while (rows->index(0, 7).data() == QString("..."))
                   QApplication::processEvents(QEventLoop::WaitForMoreEvents);
               expect(rows->rowCount());
           },
           figuresByHand, [] {}, 5});
}
