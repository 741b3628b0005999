#include "support/PurchasingRows.h"

#include "support/LedgerRows.h"
#include "support/TestDatabase.h"

int insertPurchase(TestDatabase& database, const PurchaseRow& row)
{
    const int gross = row.quantity * row.price;
    const int off = gross * row.discount / 100;
    const int total = gross - off;
    const int status = row.paid >= total ? 1 : row.paid > 0 ? 3 : 2;
    const int id = database.value("SELECT 1 + count(*) FROM acquisition").toInt();
    insertRows(database, "acquisition",
               QString("id=%1, purchase_date='2026-03-01', due_date='2026-04-01', no='%2', invoice_no='%3', "
                       "sub_total_amount=%4, grandtotal_amount=%4, amount_paid_amount=%5, net_due_amount=%6, "
                       "status=%7, bank_id=1")
                   .arg(id)
                   .arg(row.no, row.invoiceNo)
                   .arg(total)
                   .arg(row.paid)
                   .arg(total - row.paid)
                   .arg(status));
    insertRows(database, "acquisition_detail",
               QString("id=%1, acquisition_id=%1, item_id=%2, qty=%3, qty_ordered=0, price_each_amount=%4, "
                       "discount_amount=%5, total_price_amount=%6, discount_percentage=%7")
                   .arg(id)
                   .arg(row.item)
                   .arg(row.quantity)
                   .arg(row.price)
                   .arg(off)
                   .arg(total)
                   .arg(row.discount));
    return id;
}
