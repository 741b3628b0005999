#include "support/PurchasingRows.h"

#include "support/TestDatabase.h"

int insertPurchase(TestDatabase& database, const PurchaseRow& row)
{
    const int gross = row.quantity * row.price;
    const int off = gross * row.discount / 100;
    const int total = gross - off;
    const int status = row.paid >= total ? 1 : row.paid > 0 ? 3 : 2;
    const int id =
        database
            .value(QString("INSERT INTO acquisition (id, purchase_date, due_date, supplier_id, no, invoice_no, "
                           "waiting_bill, apply_to_po, sub_total_currency, sub_total_amount, disc_perc, "
                           "discount_currency, discount_amount, tax_perc, tax_currency, tax_amount, "
                           "grandtotal_currency, grandtotal_amount, amount_paid_currency, amount_paid_amount, "
                           "net_due_currency, net_due_amount, other_payment_currency, other_payment_amount, status, "
                           "bank_id, version) SELECT 1 + count(*), '2026-03-01', '2026-04-01', 1, '%1', '%2', false, "
                           "false, 'Rp', %3, 0, 'Rp', 0, 0, 'Rp', 0, 'Rp', %3, 'Rp', %4, 'Rp', %5, 'Rp', 0, %6, 1, 1 "
                           "FROM acquisition RETURNING id")
                       .arg(row.no, row.invoiceNo)
                       .arg(total)
                       .arg(row.paid)
                       .arg(total - row.paid)
                       .arg(status))
            .toInt();
    database.run(QString("INSERT INTO acquisition_detail (id, acquisition_id, item_id, qty, qty_ordered, "
                         "price_each_currency, price_each_amount, discount_currency, discount_amount, "
                         "total_price_currency, total_price_amount, discount_percentage, version) VALUES "
                         "(%1, %1, %2, %3, 0, 'Rp', %4, 'Rp', %5, 'Rp', %6, %7, 1)")
                     .arg(id)
                     .arg(row.item)
                     .arg(row.quantity)
                     .arg(row.price)
                     .arg(off)
                     .arg(total)
                     .arg(row.discount));
    return id;
}
