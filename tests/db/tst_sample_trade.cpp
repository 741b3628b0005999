#include "hands/TradeChecks.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/EntityCashFlow.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/totals/InvoiceTotals.h"
#include "reports/ReadReport.h"
#include "support/DatabaseTest.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/receivable/EntityPiutang.h"
#include "zavel/receivable/ReceivableFilter.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QProcess>

namespace
{
const QDate beginning(2000, 1, 1);

QString setUp(const QString& database, const QString& seed, int* status)
{
    QProcess program;
    program.start(ZAVEL_SETUP_PROGRAM, {"sample-trade", "--host", TestDatabase::host(), "--port",
                                        QString::number(TestDatabase::port()), "--user", TestDatabase::user(),
                                        "--database", database, "--months", "3", "--per-day", "8", "--seed", seed});
    const bool ended = program.waitForFinished(60000) && program.exitStatus() == QProcess::NormalExit;
    *status = ended ? program.exitCode() : -1;
    return QString::fromUtf8(program.readAllStandardError());
}

const QStringList trade{"invoice",
                        "invoice_detail",
                        "invoice_makan_ditempat",
                        "invoice_fast_food",
                        "invoice_bawa_pulang",
                        "makan_ditempat",
                        "makan_ditempat_detail",
                        "bawa_pulang",
                        "bawa_pulang_detail",
                        "purchase_order",
                        "purchase_order_detail",
                        "acquisition",
                        "acquisition_detail",
                        "credit_note",
                        "credit_note_detail",
                        "payment",
                        "payment_invoice",
                        "payment_expense",
                        "piutang",
                        "piutang_detail",
                        "komisi_agen",
                        "komisi_agen_detail",
                        "cash_flow",
                        "accounting_trans",
                        "stock_take",
                        "item_history"};

/** A line a table: how many rows it has, and a digest of them. */
QStringList digests(TestDatabase& database)
{
    QStringList lines;
    for (const QString& table : trade)
        lines.append(database
                         .value("select concat_ws(' ', '" + table +
                                "', count(*), md5(string_agg(row::text, '' order by id))) from " + table + " row")
                         .toString());
    return lines;
}

/** The indexes and foreign keys. */
QString schemaOf(TestDatabase& database)
{
    return database
        .value("select string_agg(line, E'\\n' order by line) from (select indexdef as line from pg_indexes where "
               "schemaname = 'public' union all select concat_ws(' ', conrelid::regclass, conname, "
               "pg_get_constraintdef(oid)) from pg_constraint where connamespace = 'public'::regnamespace) lines")
        .toString();
}
} // namespace

/** The sample restaurant has nothing that the program itself would not have left, and can be worked with. */
class TestSampleTrade : public DatabaseTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepDatabase();
        m_schema = schemaOf(*m_database);
        int status = 0;
        const QString complaint = setUp(m_database->name(), "7", &status);
        QVERIFY2(status == 0, qPrintable(complaint));
        m_sales = service<BusinessPenjualan>("Sales");
    }

    void everyKindOfDocumentIsThereAndWhole()
    {
        for (const QString& line : digests(*m_database))
            QVERIFY2(line.section(' ', 1, 1).toInt() > 0, qPrintable(line));
        const QStringList faults = faultsOfTrade(*m_database);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QCOMPARE(schemaOf(*m_database), m_schema);
        QVERIFY(count("invoice where member_id is not null and net_due_amount > 0") > 0);
        QVERIFY(count("makan_ditempat where status <> 6") > 0 && count("bawa_pulang where status <> 6") > 0);
        QVERIFY(count("(select from invoice_makan_ditempat group by makan_ditempat_id having count(*) > 1) split") > 0);
        QCOMPARE(count("invoice where invoice_date >= current_date or createdtime > localtimestamp"), 0);
        // What is asked of the installation is what it was.
        QCOMPARE(value("select md5(string_agg(password, '')) from users where username in ('admin', 'dewi')"),
                 value("select md5(string_agg(password, '')) from users where password <> '-'"));
    }

    void theProgramReckonsTheSame()
    {
        const QString money = "select md5(string_agg(concat_ws(' ', id, other_payment_amount, net_due_amount, status), "
                              "',' order by id)) from ";
        const QString dues = value(money + "invoice") + value(money + "acquisition");
        ReceivableFilter all;
        all.from = beginning;
        all.to = QDate::currentDate();
        for (const EntityPiutang* listed : m_sales->searchPiutang(all))
            QVERIFY2(m_sales->updateInvoicesOfPiutang(m_sales->findPiutang(listed->getId())),
                     qPrintable(m_sales->takeErrors()));
        auto* purchases = service<BusinessPurchases>("Purchases");
        for (int id = 1; id <= count("acquisition"); ++id)
            QVERIFY2(purchases->recalculateDue(id), qPrintable(purchases->takeErrors()));
        QCOMPARE(value(money + "invoice") + value(money + "acquisition"), dues);

        const QHash<int, int> stock = service<BusinessInventory>("Inventory")->quantitiesOnHand(QDate::currentDate());
        QStringList onHand;
        for (int item = 1; item <= count("item"); ++item)
            onHand.append(QString("%1 %2").arg(item).arg(stock.value(item)));
        QCOMPARE(onHand.join(','), value(m_onHand));
    }

    void theSumsAreThoseOfTheDocuments()
    {
        const QDate today = QDate::currentDate();
        qint64 total = 0;
        for (const EntitySalesSummaryInfo* day : m_sales->getDailySales(beginning, today, BusinessPenjualan::AllUsers))
            total += day->getTotal();
        QCOMPARE(QString::number(total), value("select sum(grandtotal_amount) from invoice"));
        qint64 sold = 0;
        for (const EntitySoldItem* item : m_sales->getSoldItems(beginning, today, "desc", "total_qty", ""))
            sold += item->getTotalQty();
        QCOMPARE(QString::number(sold), value("select sum(qty) from invoice_detail"));

        QMap<QString, double> balances;
        for (const EntityCashFlow* row :
             service<BusinessCashFlow>("Journal Transaction")->search({beginning, today, CashFlowFilter::AllRows, {}}))
            balances[row->getAccountCode()] += row->getDebet()->getAmount() - row->getCredit()->getAmount();
        QStringList ledger;
        for (auto balance = balances.cbegin(); balance != balances.cend(); ++balance)
            ledger.append(QString("%1 %2").arg(balance.key()).arg(balance.value(), 0, 'f', 0));
        QCOMPARE(ledger.join(','), value(m_balances));

        const auto sumOf = [&](const QString& report, const QString& field) {
            const ReadReport read = readReport(*m_database, report, beginning, today);
            double sum = 0;
            for (int row = 0; row < read.table.rowCount(); ++row)
                sum += read.value(row, field).toDouble();
            return QString::number(sum, 'f', 0);
        };
        QCOMPARE(sumOf("sales-by-day", "total"), QString::number(total));
        QCOMPARE(sumOf("sales-by-item", "qty"), QString::number(sold));
    }

    void commissionsAreAsTheProgramReckonsThem()
    {
        AgentSalesFilter filter;
        filter.from = beginning;
        filter.to = QDate::currentDate();
        int settled = 0;
        for (const EntityAllKomisiAgen* row : m_sales->searchInvoiceForAgentCommision(filter)) {
            const QString stored =
                value(QString("select sum(commision_amount)::text from komisi_agen_detail where invoice_id = %1")
                          .arg(row->getInvoice()->getId()));
            if (stored.isEmpty())
                continue;
            QCOMPARE(stored, QString::number(row->getCommision()->getAmount()));
            ++settled;
        }
        QVERIFY(settled > 0);
    }

    void workGoesOn()
    {
        const int before = value("select next_id from keytable where key_name = 'TRD'").toInt();
        // What was ordered and delivered before, once more.
        EntityMakanDitempat* order = m_sales->findOrder(value("select max(id) from makan_ditempat").toInt());
        order->setId(KorNoValue);
        for (EntityOrderDetail* line : order->getDetails())
            line->setId(KorNoValue);
        EntityMeja table;
        table.setId(value("select max(id) from meja").toInt());
        order->setMeja(&table);
        QVERIFY2(m_sales->insertNewOrder(order), qPrintable(m_sales->takeErrors()));
        EntityInvoiceMakanDitempat sale;
        bill(&sale, order);
        QVERIFY2(m_sales->insertInvoice(&sale), qPrintable(m_sales->takeErrors()));
        QVERIFY(sale.getInvoice()->getInvoiceNo().endsWith(QString::number(before)));

        auto* purchases = service<BusinessPurchases>("Purchases");
        auto* again = static_cast<EntityAcquisition*>(purchases->find(1));
        again->setId(KorNoValue);
        for (EntityAcquisitionDetail* line : again->getDetails())
            line->setId(KorNoValue);
        again->setPurchaseDate(QDate::currentDate());
        QVERIFY2(purchases->insert(again), qPrintable(purchases->takeErrors()));
        const QStringList faults = faultsOfTrade(*m_database);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void aDatabaseWithTradeIsLeftAsItIs()
    {
        const QStringList before = digests(*m_database);
        int status = 0;
        const QString complaint = setUp(m_database->name(), "7", &status);
        QCOMPARE(status, 1);
        QVERIFY2(complaint.contains("holds trade already"), qPrintable(complaint));
        QCOMPARE(digests(*m_database), before);
        QCOMPARE(schemaOf(*m_database), m_schema);
    }

    void theSeedMakesTheTrade()
    {
        QList<QStringList> made;
        for (const char* seed : {"7", "7", "8"}) {
            TestDatabase other;
            int status = 0;
            const QString complaint = setUp(other.name(), seed, &status);
            QVERIFY2(status == 0, qPrintable(complaint));
            made.append(digests(other));
        }
        QCOMPARE(made.at(1), made.at(0));
        QVERIFY(made.at(2) != made.at(0));
    }

private:
    void bill(EntityInvoiceMakanDitempat* sale, EntityMakanDitempat* order)
    {
        double subtotal = 0;
        QList<EntityInvoiceDetail*> lines;
        for (const EntityOrderDetail* ordered : order->getDetails()) {
            auto* line = new EntityInvoiceDetail(m_records.get());
            line->setItem(ordered->getItem());
            line->setQty(ordered->getQty());
            line->setPriceEach(ordered->getPriceEach());
            line->recomputeTotal();
            subtotal += line->getTotal()->getAmount();
            lines.append(line);
        }
        sale->setMakanDitempat(order);
        sale->setDetails(lines);
        sale->getInvoice()->setInvoiceDate(order->getTgl());
        sale->getInvoice()->setAcctCode("1010");
        InvoiceTotals totals;
        totals.setSubtotal(subtotal);
        totals.setPaid(subtotal);
        totals.writeTo(sale->getInvoice());
    }

    // From the beginning on, while the program goes on from the last count.
    const QString m_onHand =
        "select string_agg(item.id || ' ' || coalesce((select jumlah from stok_awal where item_id = item.id), 0) + "
        "coalesce((select sum(qty) from acquisition_detail where item_id = item.id), 0) - coalesce((select sum(qty) "
        "from invoice_detail where item_id = item.id), 0) - coalesce((select sum(qty_returned) from credit_note_detail "
        "line join credit_note note on note.id = credit_note_id where item_id = item.id and status <> 4), 0) + "
        "coalesce((select sum(qty_adj) from stock_take where item_id = item.id), 0), ',' order by item.id) from item";
    const QString m_balances =
        "select string_agg(kode || ' ' || amount, ',' order by kode) from (select kode, sum(amount) as amount from "
        "(select acct_code as kode, grandtotal_amount as amount from invoice union all select kode, -grandtotal_amount "
        "from purchase_order join bank on bank.id = bank_id union all select kode, -grandtotal_amount from acquisition "
        "join bank on bank.id = bank_id union all select kode, grandtotal_amount from credit_note join bank on bank.id "
        "= bank_id union all select kode, -grandtotal_amount from payment join bank on bank.id = bank_id union all "
        "select kode, grandtotal_amount from piutang join bank on bank.id = bank_id union all select kode, "
        "-grandtotal_amount from komisi_agen join bank on bank.id = bank_id union all select account_code, "
        "debet_amount - credit_amount from cash_flow union all select kode, -amount_amount from accounting_trans join "
        "bank on bank.id = from_account_id union all select kode, amount_amount from accounting_trans join bank on "
        "bank.id = to_account_id) entries group by kode) sums";

    BusinessPenjualan* m_sales = nullptr;
    QString m_schema;
};

QTEST_MAIN(TestSampleTrade)
#include "tst_sample_trade.moc"
