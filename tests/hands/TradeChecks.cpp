#include "hands/TradeChecks.h"

#include "forms/AllForms.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

namespace
{
/** The name of a fault, and a statement that finds its rows; the first column names them. */
using Check = QPair<QString, QString>;

/** The header's total differs from the sum of its lines. */
Check sum(const QString& what, const QString& header, const QString& total, const QString& lines)
{
    return {
        what,
        QString("select concat(id, ' (', %2, ' and not ', %3, ')') from %1 where %2 <> %3").arg(header, total, lines)};
}

QString linesOf(const QString& header, const QString& lines, const QString& amount)
{
    return QString("coalesce((select sum(%3) from %2 where %1_id = %1.id), 0)").arg(header, lines, amount);
}

Check lineless(const QString& header, const QString& lines)
{
    return {header + " without lines",
            QString("select id from %1 where not exists (select 1 from %2 where %1_id = %1.id)").arg(header, lines)};
}

Check twice(const QString& table)
{
    return {"number given twice in " + table,
            QString("select no from %1 where no <> '' group by no having count(*) > 1").arg(table)};
}

/** Lines whose movement in the journal is missing or different. */
Check journal(const QString& lines, int type, const QString& moved, const QString& lineQuantity)
{
    return {lines + " not in the journal",
            QString("select id from %1 where %4 <> coalesce((select sum(%3) from item_history where tran_type = %2 and "
                    "tran_id = %1.id), 0)")
                .arg(lines)
                .arg(type)
                .arg(moved, lineQuantity)};
}

QList<Check> checks()
{
    return {
        lineless("invoice", "invoice_detail"),
        lineless("makan_ditempat", "makan_ditempat_detail"),
        lineless("bawa_pulang", "bawa_pulang_detail"),
        lineless("acquisition", "acquisition_detail"),
        lineless("purchase_order", "purchase_order_detail"),
        lineless("credit_note", "credit_note_detail"),
        lineless("piutang", "piutang_detail"),
        lineless("komisi_agen", "komisi_agen_detail"),
        twice("invoice"),
        twice("acquisition"),
        twice("purchase_order"),
        twice("credit_note"),
        twice("payment"),
        twice("piutang"),
        twice("komisi_agen"),
        sum("sale and its lines", "invoice", "sub_total_amount", linesOf("invoice", "invoice_detail", "total_amount")),
        sum("purchase and its lines", "acquisition", "sub_total_amount",
            linesOf("acquisition", "acquisition_detail", "total_price_amount")),
        sum("purchase order and its lines", "purchase_order", "sub_total_amount",
            linesOf("purchase_order", "purchase_order_detail", "total_price_amount")),
        sum("credit note and its lines", "credit_note", "sub_total_amount",
            linesOf("credit_note", "credit_note_detail", "total_price_amount")),
        sum("payment of bills and its lines", "payment", "grandtotal_amount",
            linesOf("payment", "payment_invoice", "amount_paid_amount") + " + " +
                linesOf("payment", "payment_expense", "amount_amount")),
        sum("member's payment and its lines", "piutang", "grandtotal_amount",
            linesOf("piutang", "piutang_detail", "amount_paid_amount")),
        sum("total of a sale", "invoice", "grandtotal_amount",
            "sub_total_amount - discount_amount + tax_amount + service_amount"),
        sum("total of a purchase", "acquisition", "grandtotal_amount",
            "sub_total_amount - discount_amount + tax_amount"),
        // Fast-food and take-away sales store it as the form shows it: change is positive.
        sum("due of a sale", "invoice", "abs(net_due_amount)",
            "abs(grandtotal_amount - amount_paid_amount - other_payment_amount)"),
        sum("due of a purchase", "acquisition", "net_due_amount",
            "grandtotal_amount - amount_paid_amount - other_payment_amount"),
        {"a sale of no kind, or of two",
         "select id from invoice where (select count(*) from invoice_makan_ditempat where invoice_id = invoice.id) + "
         "(select count(*) from invoice_bawa_pulang where invoice_id = invoice.id) + (select count(*) from "
         "invoice_fast_food where invoice_id = invoice.id) <> 1"},
        {"status of a sale",
         "select id from invoice where status <> case when amount_paid_amount + other_payment_amount = 0 then 2 when "
         "amount_paid_amount + other_payment_amount >= grandtotal_amount then 1 else 3 end"},
        {"status of a purchase",
         "select id from acquisition where status <> case when net_due_amount <= 0 then 1 when amount_paid_amount + "
         "other_payment_amount > 0 then 3 else 2 end"},
        // An amount that was entered directly has a percentage with three decimals.
        {"percent and amount of a discount",
         "select id from invoice where sub_total_amount > 0 and abs(discount_amount - sub_total_amount * disc_perc / "
         "100) > 1 + abs(sub_total_amount) / 100000"},
        // Deleting a payment does not change the purchase, so more may be paid than the payments show. A sale may also
        // have less, because credit can be entered in the bill itself.
        {"less paid of a purchase than was paid later",
         "select id from acquisition where other_payment_amount < " +
             linesOf("acquisition", "payment_invoice", "amount_paid_amount")},
        // The journal keeps the rows of deleted documents, but not of deleted adjustments.
        journal("acquisition_detail", 1, "qty_in", "qty"),
        journal("credit_note_detail", 4, "qty_out", "qty_returned"),
        journal("stock_take", 3, "qty_in - qty_out", "qty_adj"),
        {"journal of no adjustment",
         "select id from item_history where tran_type = 3 and tran_id not in (select id from stock_take)"},
        {"an item with two beginning balances", "select item_id from stok_awal group by item_id having count(*) > 1"},
        {"a line of less than nothing", "select id from makan_ditempat_detail where qty <= 0 union all select id from "
                                        "bawa_pulang_detail where qty <= 0"},
    };
}
} // namespace

void openShopForHands(TestDatabase& database)
{
    openShopForForms(database);
    insertItem(database, 2, "TEA", "Iced tea");
    // The rows were inserted with explicit ids.
    database.run("DO $$ DECLARE t text; BEGIN FOR t IN SELECT table_name FROM information_schema.columns WHERE "
                 "table_schema = 'public' AND column_name = 'id' LOOP EXECUTE format('SELECT "
                 "setval(pg_get_serial_sequence(%L, ''id''), (SELECT coalesce(max(id), 0) + 1 FROM %I))', t, t); END "
                 "LOOP; END $$");
    database.run("INSERT INTO stok_awal (item_id, jumlah, harga_currency, harga_amount, version) SELECT id, 100, 'Rp', "
                 "10, 1 FROM item WHERE NOT EXISTS (SELECT 1 FROM stok_awal WHERE item_id = item.id)");
    // The default accounts of the forms.
    database.run("INSERT INTO bank (kode, nama, account_type, active, version) SELECT code, code, 1, true, 1 FROM "
                 "unnest(ARRAY['1010', '1020', '1100', '1200', '2000', '4050', '5000', '6650']) code");
    database.run("INSERT INTO member (kode, nama, alamat, telp, discount_percentage, version) VALUES ('M2', 'Regular', "
                 "'Street 9', '9', 10, 1)");
    database.run("INSERT INTO meja (id, kode, nama, version) SELECT i, 'T' || i, 'Table ' || i, 1 FROM "
                 "generate_series(2, 6) i");
}

QStringList faultsOfTrade(TestDatabase& database)
{
    QStringList faults;
    const QList<Check> all = checks();
    for (const Check& check : all) {
        const QString rows =
            database.value("SELECT string_agg(what::text, ', ') FROM (" + check.second + ") AS found(what)").toString();
        if (!rows.isEmpty())
            faults.append(check.first + ": " + rows);
    }
    return faults;
}
