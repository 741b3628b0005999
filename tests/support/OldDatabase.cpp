#include "support/OldDatabase.h"

#include "support/LedgerRows.h"
#include "support/PurchasingRows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

#include <QStringList>

namespace
{
QSet<QString> linesOf(TestDatabase& database, const QString& select)
{
    const QStringList lines =
        database.value("SELECT string_agg(line, E'\\x01') FROM (" + select + ") all_lines (line)").toString().split(1);
    return {lines.begin(), lines.end()};
}

void trade(TestDatabase& database)
{
    insertShop(database);
    for (const QString type : {"TRD", "TRF", "TRP"})
        insertSale(database, {type + '1', type});
    insertDineOrder(database, {{2, 15}, {1, 7}});
    // A purchase without an order: the old program stored 0 for it.
    insertPurchase(database, {"NB1", "inv 1", 0, 3, 10});
    insertPurchase(database, {"NB2", "inv 2", 30, 3, 10});
    insertLedgerRow(database, {LedgerRow::PurchaseOrder, "PO1", {2026, 3, 1}});
    insertRows(database, "stock_take", "item_id=1, source_acct_code='1-100'");
}
} // namespace

void takeBackToVersion10(TestDatabase& database)
{
    trade(database);
    for (const char* table : {"satuan", "jenis_item", "meja", "member", "bank", "employee", "supplier", "agent"})
        database.run(QString("ALTER TABLE %1 ALTER COLUMN kode TYPE varchar(10)").arg(table));
    database.run("ALTER TABLE stock_take ALTER COLUMN source_acct_code TYPE varchar(10)");
    const char* missing[][2] = {{"business", "business_name_key"},
                                {"supplier", "supplier_kode_key"},
                                {"agent", "agent_kode_key"},
                                {"acquisition", "acquisition_po_id_fkey"},
                                {"acquisition_detail", "acquisition_detail_po_detail_id_fkey"},
                                {"purchase_order_detail", "purchase_order_detail_purchase_order_id_fkey"}};
    for (const auto& [table, constraint] : missing)
        database.run(QString("ALTER TABLE %1 DROP CONSTRAINT %2").arg(table, constraint));
    database.run("UPDATE acquisition SET po_id = CASE no WHEN 'NB1' THEN 0 ELSE (SELECT max(id) FROM purchase_order) "
                 "END");
    database.run("DO $$ DECLARE i text; BEGIN FOR i IN SELECT indexname FROM pg_indexes WHERE indexname LIKE "
                 "'%\\_idx' LOOP EXECUTE 'DROP INDEX ' || i; END LOOP; END $$");
    // Deletes rights that the older program did not have, one of them with its service; and adds grants of an owner.
    const QString newer = "SELECT id FROM permissions WHERE permission_name IN ('Add table', 'Manage unit')";
    database.run("DELETE FROM access WHERE permission_id IN (" + newer + ")");
    database.run("DELETE FROM permissions WHERE id IN (" + newer + ")");
    database.run("DELETE FROM business WHERE name = 'Unit'");
    database.run("INSERT INTO access (group_id, permission_id, grant_type, version) SELECT 3, id, 1, 1 FROM "
                 "permissions WHERE permission_name = 'Update table'");
    database.run("UPDATE appconfig SET appvalue = '1.0' WHERE appkey = 'app_version'");
}

QMap<QString, QSet<QString>> allRows(TestDatabase& database)
{
    QMap<QString, QSet<QString>> rows;
    const QSet<QString> tables = linesOf(database, "SELECT tablename::text FROM pg_tables WHERE schemaname = 'public'");
    for (const QString& table : tables)
        rows[table] = linesOf(database, QString("SELECT t::text FROM \"%1\" t").arg(table));
    return rows;
}

QSet<QString> schemaOf(TestDatabase& database)
{
    return linesOf(database,
                   "SELECT concat_ws(' ', table_name, column_name, data_type, character_maximum_length, is_nullable, "
                   "column_default) FROM information_schema.columns WHERE table_schema = 'public' "
                   "UNION ALL SELECT concat_ws(' ', conrelid::regclass, conname, pg_get_constraintdef(oid)) FROM "
                   "pg_constraint WHERE connamespace = 'public'::regnamespace "
                   "UNION ALL SELECT indexdef FROM pg_indexes WHERE schemaname = 'public'");
}
