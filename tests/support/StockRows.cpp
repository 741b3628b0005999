#include "support/StockRows.h"

#include "support/TestDatabase.h"

void insertManyMovements(TestDatabase& database, int items, int years)
{
    // Columns that do not matter here get defaults.
    database.run(
        "DO $$ DECLARE c record; BEGIN FOR c IN SELECT table_name, column_name, CASE WHEN column_name = 'acct_code' "
        "THEN '1-100' WHEN data_type = 'boolean' THEN 'false' WHEN data_type = 'date' THEN '2026-01-01' WHEN data_type "
        "= 'integer' THEN '1' ELSE '0' END AS filler FROM information_schema.columns WHERE is_nullable = 'NO' AND "
        "column_default IS NULL AND table_name IN ('invoice', 'invoice_detail', 'acquisition', 'acquisition_detail', "
        "'credit_note', 'credit_note_detail', 'stock_take', 'item_history') LOOP EXECUTE format('ALTER TABLE %I ALTER "
        "%I SET DEFAULT %L', c.table_name, c.column_name, c.filler); END LOOP; END $$");
    // Documents are spread over the years and stored in order of date, as in a real shop.
    database.run(QString("CREATE FUNCTION pg_temp.day_at(part numeric) RETURNS date LANGUAGE sql AS 'SELECT "
                         "current_date - %1 + floor(%1 * part)::int'")
                     .arg(years * 365));
    const auto run = [&](QString statement) {
        database.run(statement.replace("ITEMS", QString::number(items)).replace("day_at", "pg_temp.day_at"));
    };
    run("INSERT INTO item (id, kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, harga_beli_amount, "
        "harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, inventory_acct_code, "
        "cost_of_sales_acct_code, version) SELECT i, 'I' || i, 1, false, 'Item number ' || i, 1, 1, 'Rp', 10, 'Rp', "
        "15, '1-100', '1-100', '1-100', 1 FROM generate_series(2, ITEMS) i");
    run("INSERT INTO stok_awal (item_id, harga_currency, harga_amount, jumlah, createdtime, version) SELECT id, 'Rp', "
        "10, id % 50, now(), 1 FROM item");
    run("INSERT INTO stock_take (item_id, tanggal, qty, source_acct_code, version) SELECT id, day_at(id % 97 / 97.0), "
        "id % 40, '1-100', 1 FROM item WHERE id % 3 = 0");
    // Documents with five lines each; the lines cover all items.
    for (const auto& document :
         {QStringList{"invoice", "invoice_date", "invoice_detail", "invoice_id, item_id, qty", "8"},
          QStringList{"acquisition", "purchase_date", "acquisition_detail", "acquisition_id, item_id, qty", "0.8"},
          QStringList{"credit_note", "credit_note_date", "credit_note_detail", "credit_note_id, item_id, qty_returned",
                      "0.2"}}) {
        const QString count = "(ITEMS * " + document[4] + ")::int";
        run("INSERT INTO " + document[0] + " (" + document[1] + ", version) SELECT day_at(i::numeric / " + count +
            "), 1 FROM generate_series(1, " + count + ") i");
        run("INSERT INTO " + document[2] + " (" + document[3] +
            ", version) SELECT id, 1 + (id * 5 + n) % ITEMS, 1 + n, "
            "1 FROM " +
            document[0] + ", generate_series(0, 4) n");
    }
    run("INSERT INTO item_history (item_id, trans_date, qty_in, qty_out, qty_remain, tran_type, tran_id, version) "
        "SELECT item_id, purchase_date, qty, 0, 0, 1, line.id, 1 FROM acquisition_detail line JOIN acquisition ON "
        "acquisition.id = acquisition_id UNION ALL SELECT 1, day, 1, 0, 0, 1, 0, 1 FROM "
        "generate_series(day_at(0), current_date, interval '1 day') day ORDER BY 2");
    database.run("ANALYZE");
}
