#include "app/registry/AppMapperRegistry.h"
#include "kor/persistence/KorDataMapper.h"
#include "pos/inventory/stock/StockMovements.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/registry/ZavelMapperRegistry.h"

namespace
{
QList<KorDataMapper*> registered()
{
    return AppMapperRegistry::instance()->all() + PosMapperRegistry::instance()->all() +
           ZavelMapperRegistry::instance()->all();
}

QList<KorDataMapper*> withLineMappers()
{
    QList<KorDataMapper*> all;
    for (KorDataMapper* mapper : registered()) {
        all.append(mapper);
        all += mapper->lineMappers();
    }
    return all;
}

/** The server's error for the statement; empty if it can be prepared. */
QString refusal(const QString& statement)
{
    KorQuery query;
    return query.prepare(statement) ? QString() : query.failure() + "\n" + statement;
}

QStringList createAll(int mode)
{
    QStringList failures;
    for (KorDataMapper* mapper : registered()) {
        if (!mapper->createTable(mode))
            failures += mapper->name() + ": " + mapper->takeError();
    }
    return failures;
}
} // namespace

/** The schema that the program's mappers create in an empty database. */
class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        QCOMPARE(createAll(1), QStringList());
    }

    void theTablesCanBeMadeAgain()
    {
        const QString indexes = "select string_agg(indexname, ', ' order by indexname) from pg_indexes "
                                "where schemaname = 'public'";
        const QVariant constraintsBefore = m_database->value("select count(*) from pg_constraint");
        const QVariant indexesBefore = m_database->value(indexes);
        // Keeping what is there, and dropping it.
        for (const int mode : {2, 1}) {
            QCOMPARE(createAll(mode), QStringList());
            QCOMPARE(m_database->value("select count(*) from pg_constraint"), constraintsBefore);
            QCOMPARE(m_database->value(indexes), indexesBefore);
        }
    }

    void aRestaurantHasAllItsTables()
    {
        QSet<QString> expected;
        for (const KorDataMapper* mapper : withLineMappers())
            expected.insert(mapper->tableName());
        const QString made = text("select string_agg(tablename, ' ' order by tablename) from pg_tables where "
                                  "schemaname = 'public'");
        QStringList names = expected.values();
        names.sort();
        QCOMPARE(made, names.join(' '));
    }

    void everySelectIsUnderstood()
    {
        for (const KorDataMapper* mapper : withLineMappers()) {
            // The journal is only written to; its table has no stamps that a generated SELECT could name.
            if (mapper->name() == "history")
                continue;
            QCOMPARE(refusal(mapper->selectStatement()), QString());
        }
    }

    void stockStatementsAreUnderstood()
    {
        QCOMPARE(refusal(StockMovements::onHandStatement()), QString());
        for (const auto kind : {StockMovements::Acquired, StockMovements::Used, StockMovements::Returned}) {
            QCOMPARE(refusal(StockMovements::statement(kind, false)), QString());
            QCOMPARE(refusal(StockMovements::statement(kind, true)), QString());
        }
    }

    void everyForeignKeyHasAnIndex()
    {
        // Foreign keys without a full index, and the reason why none is needed.
        const QMap<QString, QString> allowed{
            {"acquisition.supplier_id", "lists ask for a supplier's open purchases only; suppliers are seldom deleted"},
            {"invoice.member_id", "lists ask for a member's open invoices only; members are seldom deleted"},
            {"makan_ditempat.meja_id", "the board asks for open orders only; tables are seldom deleted"},
        };
        // A partial index is enough for a foreign key only if it excludes nothing but NULL values.
        const QString bare =
            text("select string_agg(c.conrelid::regclass || '.' || a.attname, ' ') from pg_constraint c join "
                 "pg_attribute a on a.attrelid = c.conrelid and a.attnum = c.conkey[1] where c.contype = 'f' and "
                 "c.connamespace = 'public'::regnamespace and not exists (select 1 from pg_index i where "
                 "i.indrelid = c.conrelid and i.indkey[0] = c.conkey[1] and (i.indpred is null or "
                 "pg_get_expr(i.indpred, i.indrelid) = '(' || a.attname || ' IS NOT NULL)'))");
        QStringList unexcused;
        for (const QString& column : bare.split(' ')) {
            if (!allowed.contains(column))
                unexcused.append(column);
        }
        QCOMPARE(unexcused.join(' '), QString());
    }

    void aColumnPointsAtItsMaster_data()
    {
        const auto row = addColumns<QString>("keys");
        row("stok_awal.item_id", "stok_awal_item_id_fkey item(id) cascade");
        row("grouped_item.parent_id", "grouped_item_parent_id_fkey item(id) cascade");
        row("grouped_item.original_item_id", "grouped_item_original_item_id_fkey item(id)");
        row("item.sales_acct_code", "sales_acc bank(kode)");
        row("item.inventory_acct_code", "inv_acc bank(kode)");
        row("item.cost_of_sales_acct_code", "cost_sales_acc bank(kode)");
        row("item.jenis", "item_jenis_fkey jenis_item(id)");
        row("stock_take.source_acct_code", "stock_take_source_acct_code_fkey bank(kode)");
        row("supplier.bank_id", "supplier_bank_id_fkey bank(id)");
        row("purchase_order.supplier_id", "purchase_order_supplier_id_fkey supplier(id)");
        row("purchase_order.bank_id", "purchase_order_bank_id_fkey bank(id)");
        row("purchase_order_detail.purchase_order_id",
            "purchase_order_detail_purchase_order_id_fkey purchase_order(id)");
        row("acquisition.po_id", "acquisition_po_id_fkey purchase_order(id)");
        row("acquisition_detail.po_detail_id", "acquisition_detail_po_detail_id_fkey purchase_order_detail(id)");
        row("acquisition_detail.acquisition_id", "acquisition_detail_acquisition_id_fkey acquisition(id)");
        row("credit_note.acquisition_id", "");
        row("credit_note_detail.acquisition_detail_id", "");
        row("credit_note_detail.item_id", "credit_note_detail_item_id_fkey item(id)");
        row("payment_invoice.acquisition_id", "payment_invoice_acquisition_id_fkey acquisition(id)");
        row("payment_expense.payment_id", "payment_expense_payment_id_fkey payment(id)");
        row("cash_flow.account_code", "");
        row("accounting_trans.from_account_id", "accounting_trans_from_account_id_fkey bank(id)");
        row("accounting_trans.to_account_id", "accounting_trans_to_account_id_fkey bank(id)");
        row("accounting_trans.createdby", "");
        row("invoice.acct_code", "invoice_acct_code_fkey bank(kode)");
        row("invoice.member_id", "invoice_member_id_fkey member(id)");
        row("invoice_detail.invoice_id", "invoice_detail_invoice_id_fkey invoice(id)");
        row("makan_ditempat.meja_id", "makan_ditempat_meja_id_fkey meja(id)");
        row("invoice_makan_ditempat.makan_ditempat_id",
            "invoice_makan_ditempat_makan_ditempat_id_fkey makan_ditempat(id)");
        row("invoice_fast_food.invoice_id", "invoice_fast_food_invoice_id_fkey invoice(id)");
        row("invoice_bawa_pulang.bawa_pulang_id", "invoice_bawa_pulang_bawa_pulang_id_fkey bawa_pulang(id)");
        row("bawa_pulang_detail.bawa_pulang_id", "bawa_pulang_detail_bawa_pulang_id_fkey bawa_pulang(id)");
        // A sale may be deleted although it was paid later or its commission was paid.
        row("piutang_detail.invoice_id", "");
        row("komisi_agen_detail.invoice_id", "");
        row("piutang_detail.piutang_id", "piutang_detail_piutang_id_fkey piutang(id)");
        row("komisi_agen_detail.komisi_agen_id", "komisi_agen_detail_komisi_agen_id_fkey komisi_agen(id)");
    }
    void aColumnPointsAtItsMaster()
    {
        const QString column = QTest::currentDataTag();
        const QString found =
            text(QString("select string_agg(c.conname || ' ' || c.confrelid::regclass || '(' || f.attname || ')' || "
                         "case c.confdeltype when 'c' then ' cascade' else '' end, ', ' order by c.conname) "
                         "from pg_constraint c join pg_attribute a on a.attrelid = c.conrelid and a.attnum = "
                         "c.conkey[1] join pg_attribute f on f.attrelid = c.confrelid and f.attnum = c.confkey[1] "
                         "where c.contype = 'f' and c.conrelid = '%1'::regclass and a.attname = '%2'")
                     .arg(column.section('.', 0, 0), column.section('.', 1)));
        QTEST(found, "keys");
    }

    void whatListsFilterByHasAnIndex_data()
    {
        const auto row = addColumns<QStringList>("wanted");
        row("item_history", {"(item_id, trans_date, id)", "(tran_id, tran_type)"});
        row("stock_take", {"(item_id, tanggal DESC, id DESC)"});
        row("purchase_order", {"(purchase_date)"});
        row("purchase_order_detail", {"(item_id, purchase_order_id) INCLUDE (jumlah)"});
        row("acquisition", {"(purchase_date)", "(supplier_id) WHERE (status <> 1)", "(no)"});
        row("acquisition_detail", {"(item_id, acquisition_id) INCLUDE (qty)"});
        row("credit_note", {"(credit_note_date)", "(acquisition_id)"});
        row("credit_note_detail", {"(item_id, credit_note_id) INCLUDE (qty_returned)"});
        row("payment", {"(payment_date)"});
        row("payment_expense", {"(item_id, payment_id) INCLUDE (qty)"});
        row("cash_flow", {"(trans_date)", "(lower((trans_no)::text))"});
        row("accounting_trans", {"(trans_date)"});
        const QString open = " WHERE ((status IS NULL) OR ((status IS NOT NULL) AND (status <> 6)))";
        row("makan_ditempat", {"(meja_id)" + open});
        row("bawa_pulang", {"(id)" + open});
        row("invoice", {"(invoice_date)", "(member_id) WHERE (status <> 1)"});
        row("invoice_detail", {"(item_id, invoice_id) INCLUDE (qty)"});
        for (const char* link : {"invoice_makan_ditempat", "invoice_fast_food"})
            row(link, {"(agent_id, invoice_id) WHERE (agent_id IS NOT NULL)"});
        for (const char* payments : {"piutang", "komisi_agen"})
            row(payments, {"(payment_date)"});
        for (const char* lines : {"piutang_detail", "komisi_agen_detail"})
            row(lines, {"(invoice_id)"});
    }
    void whatListsFilterByHasAnIndex()
    {
        QFETCH(QStringList, wanted);
        const QStringList there =
            text(QString("select string_agg(substring(indexdef from 'USING btree (.*)'), '|') from pg_indexes where "
                         "tablename = '%1'")
                     .arg(QTest::currentDataTag()))
                .split('|');
        for (const QString& definition : wanted)
            QVERIFY2(there.contains(definition), qPrintable(definition + ", there is\n" + there.join('\n')));
    }

private:
    [[nodiscard]] QString text(const QString& statement) const { return m_database->value(statement).toString(); }

    std::unique_ptr<TestDatabase> m_database;
};

QTEST_MAIN(TestSchema)
#include "tst_schema.moc"
