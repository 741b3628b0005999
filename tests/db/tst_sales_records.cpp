#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/cash/transfer/DataMapperAccountingTransaction.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QTest>

/** What the ways of selling beside the tables keep, and the payments that follow a sale. */
class TestSalesRecords : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        m_records = std::make_unique<QObject>();
        m_mappers = ZavelMapperRegistry::instance();
        insertShop(*m_database);
        loginAsAdmin();
        m_database->run("TRUNCATE users, user_group CASCADE");
        m_database->run("INSERT INTO user_group (id, name, version) VALUES (1, 'admin', 1)");
        m_database->run(
            QString(
                "INSERT INTO users (id, first_name, last_name, username, password, user_group_id, currency, version) "
                "VALUES (%1, 'A', 'B', 'cashier', '', 1, '', 1)")
                .arg(AppContext::instance()->currentUserId()));
    }

    void cleanup() { m_database.reset(); }
    void aTakeAwayOrderIsPaidByOneInvoice()
    {
        EntityBawaPulang* order = takeAwayOrder();
        QVERIFY2(m_mappers->bawaPulangMapper()->insert(order), qPrintable(m_mappers->bawaPulangMapper()->takeError()));
        DataMapperInvoiceBawaPulang* invoices = m_mappers->invoiceBawaPulangMapper();
        auto* sale = new EntityInvoiceBawaPulang(m_records.get());
        sale->setBawaPulang(order);
        sale->setPemesan("Mary");
        QVERIFY2(sell(invoices, sale), qPrintable(invoices->takeError()));

        auto* found = static_cast<EntityInvoiceBawaPulang*>(invoices->findByInvoiceId(sale->getInvoice()->getId()));
        QVERIFY2(found, qPrintable(invoices->takeError()));
        QCOMPARE(found->getInvoice()->getInvoiceNo(), QString("TRP-0007"));
        QCOMPARE(found->getInvoice()->getInvoiceType(), QString("TRP"));
        QCOMPARE(found->getDetails().size(), 1);
        QCOMPARE(found->getBawaPulang()->getMember()->getNama(), QString("Guest"));
        QCOMPARE(found->getBawaPulang()->getDetails().value(0)->getItem()->getNama(), QString("Rice"));

        // Its status follows the money at every save, the first one and those that change it.
        const auto status = [this] { return m_database->value("SELECT status FROM bawa_pulang").toInt(); };
        auto* sales = service<BusinessPenjualan>("Sales");
        QVERIFY2(sales->updateInvoice(found), qPrintable(sales->takeErrors()));
        QCOMPARE(status(), int(EntityOrder::UNPAID));
        found->getInvoice()->setAmountPaid(money(150));
        QVERIFY2(sales->updateInvoice(found), qPrintable(sales->takeErrors()));
        QCOMPARE(status(), int(EntityOrder::PARTIALY_PAID));
        auto* paid = new EntityInvoiceBawaPulang(m_records.get());
        paid->setBawaPulang(found->getBawaPulang());
        paid->setDetails(found->getDetails());
        paid->setInvoice(found->getInvoice());
        paid->getInvoice()->setId(KorNoValue);
        paid->getInvoice()->setOtherPayment(money(50));
        QVERIFY2(sales->insertInvoice(paid), qPrintable(sales->takeErrors()));
        QCOMPARE(status(), int(EntityOrder::PAID));
    }

    void removingATakeAwayOrderTakesItsLines()
    {
        DataMapperBawaPulang* orders = m_mappers->bawaPulangMapper();
        EntityBawaPulang* order = takeAwayOrder();
        QVERIFY2(orders->insert(order), qPrintable(orders->takeError()));
        m_database->run("UPDATE bawa_pulang SET version = 2");
        QVERIFY(!orders->remove(order));
        QVERIFY(orders->takeError().startsWith("error: delete take away food detail failed"));
        QCOMPARE(count("bawa_pulang_detail"), 1);

        QVERIFY(orders->remove(orders->findById(order->getId())));
        QCOMPARE(count("bawa_pulang") + count("bawa_pulang_detail"), 0);
    }

    void theSalesListNamesTheKindAndTheWaitress()
    {
        EntityInvoiceFastFood* sale = sellOverTheCounter();
        QVERIFY2(sale, qPrintable(m_mappers->invoiceFastFoodMapper()->takeError()));
        DataMapperPenjualanInfo* list = m_mappers->penjualanInfoMapper();
        const StatementCount statements;
        const QList<KorEntity*> rows = list->find(nullptr);
        QCOMPARE(statements.count(), 1);
        QCOMPARE(rows.size(), 1);
        const auto* row = static_cast<EntityPenjualanInfo*>(rows.first());
        QCOMPARE(row->typeName(), QString("Fast Food"));
        QCOMPARE(row->waitress()->getNama(), QString("Ann"));
        QCOMPARE(row->getUser()->getUserName(), QString("cashier"));
        QCOMPARE(row->getInvoice()->getInvoiceNo(), QString("TRF-0007"));
        QCOMPARE(row->getGrandTotal()->getAmount(), 200.0);
        QVERIFY(!row->getMember());

        // The list has no table of its own, and never touches the invoices' one.
        QVERIFY(list->createTable(1));
        QCOMPARE(count("invoice"), 1);
    }

    void commissionsFollowTheAgentsPercent()
    {
        EntityInvoiceFastFood* sale = sellOverTheCounter();
        QVERIFY2(sale, qPrintable(m_mappers->invoiceFastFoodMapper()->takeError()));
        DataMapperAllAgentCommision* all = m_mappers->allAgentCommisionMapper();
        const auto only = [all] { return static_cast<EntityAllKomisiAgen*>(all->find(nullptr).value(0)); };
        QVERIFY2(only(), qPrintable(all->takeError()));
        QCOMPARE(only()->getAgent()->getNama(), QString("Guide"));
        QCOMPARE(only()->getCommision()->getAmount(), 20.0);
        QCOMPARE(only()->getStatus(), int(EntityAllKomisiAgen::UNPAID));

        DataMapperKomisiAgen* payments = m_mappers->komisiAgenMapper();
        auto* payment = new EntityKomisiAgen(m_records.get());
        payment->setAgent(known<EntityAgent>(1));
        payment->setPaymentDate(QDate(2026, 3, 2));
        payment->setGrandTotal(money(20));
        payment->setAmountPaid(money(20));
        payment->setNetDue(money(0));
        auto* line = new EntityKomisiAgenDetail(m_records.get());
        line->setInvoice(sale->getInvoice());
        line->setCommisionPerc(10);
        line->setCommision(money(20));
        payment->addDetail(line);
        QVERIFY2(payments->insert(payment), qPrintable(payments->takeError()));
        QCOMPARE(payment->getNo(), QString("KAG-0007"));
        QCOMPARE(only()->getStatus(), int(EntityAllKomisiAgen::FULL_PAID));
    }

    void paymentsOutliveTheirSaleUnseen()
    {
        EntityInvoiceFastFood* sale = sellOverTheCounter();
        QVERIFY2(sale, qPrintable(m_mappers->invoiceFastFoodMapper()->takeError()));
        DataMapperPiutang* payments = m_mappers->piutangMapper();
        auto* payment = new EntityPiutang(m_records.get());
        payment->setMember(known<EntityMember>(1));
        payment->setDate(QDate(2026, 3, 2));
        payment->setGrandTotal(money(50));
        auto* line = new EntityPiutangDetail(m_records.get());
        line->setInvoice(sale->getInvoice());
        line->setAmountPaid(money(50));
        line->setAmountDue(money(150));
        payment->addDetail(line);
        QVERIFY2(payments->insert(payment), qPrintable(payments->takeError()));
        auto* found = static_cast<EntityPiutangDetail*>(payments->lineMapper()->findById(line->getId()));
        QVERIFY2(found, qPrintable(payments->lineMapper()->takeError()));
        QCOMPARE(found->getInvoice()->getInvoiceNo(), QString("TRF-0007"));
        QCOMPARE(found->getInvoice()->getEmployee()->getNama(), QString("Ann"));

        m_database->run("DELETE FROM invoice_detail");
        m_database->run("DELETE FROM invoice_fast_food");
        m_database->run("DELETE FROM invoice");
        QVERIFY(!payments->lineMapper()->findById(line->getId()));
        QCOMPARE(count("piutang_detail"), 1);
    }

    void aTransferNamesBothAccountsAndItsOperator()
    {
        DataMapperAccountingTransaction* transfers = PosMapperRegistry::instance()->accountingTransactionMapper();
        m_database->run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
                        "(2, '1-200', 'Safe', 1, true, 1)");
        auto* transfer = new EntityAccountingTransaction(m_records.get());
        transfer->setDate(QDate(2026, 3, 1));
        transfer->setFromAccount(known<EntityBank>(1));
        transfer->setToAccount(known<EntityBank>(2));
        transfer->setAmount(money(70));
        QVERIFY2(transfers->insert(transfer), qPrintable(transfers->takeError()));

        auto* found = static_cast<EntityAccountingTransaction*>(transfers->findById(transfer->getId()));
        QVERIFY2(found, qPrintable(transfers->takeError()));
        QCOMPARE(found->getTransNo(), QString("TR-0007"));
        QCOMPARE(found->getFromAccount()->getNama(), QString("Cash"));
        QCOMPARE(found->getToAccount()->getNama(), QString("Safe"));
        QCOMPARE(found->getAmount()->getAmount(), 70.0);
        QCOMPARE(found->getUser()->getUserName(), QString("cashier"));
        QCOMPARE(found->getUser()->getGroup()->getGroupName(), QString("admin"));
    }

    void anEntryThatFailsGivesItsNumberBack()
    {
        DataMapperCashFlow* entries = PosMapperRegistry::instance()->cashFlowMapper();
        auto* entry = new EntityCashFlow(m_records.get());
        entry->setDate(QDate(2026, 3, 1));
        entry->setAccountCode("1-100");
        entry->setDebet(money(5));
        QVERIFY(!entries->insert(entry));
        QVERIFY(entries->takeError().contains("credit_currency"));
        QCOMPARE(m_database->value("select next_id from keytable where key_name = 'KK'").toInt(), 7);

        entry->setCredit(money(0));
        QVERIFY2(entries->insert(entry), qPrintable(entries->takeError()));
        QCOMPARE(entry->getTransNo(), QString("KK-0007"));
    }

private:
    template <class Entity>
    Entity* known(int id)
    {
        auto* entity = new Entity(m_records.get());
        entity->setId(id);
        return entity;
    }

    Money* money(double amount) { return new Money(m_records.get(), amount, "Rp"); }
    /** Fills the link's new invoice with one line and writes both. */
    bool sell(DataMapperInvoiceLink* mapper, EntityInvoiceLink* link)
    {
        Invoice* invoice = link->getInvoice();
        invoice->setInvoiceDate(QDate(2026, 3, 1));
        invoice->setStatus(Invoice::UNPAID);
        invoice->setSubtotal(money(200));
        invoice->setDiscount(money(0));
        invoice->setTax(money(0));
        invoice->setService(money(0));
        invoice->setGrandTotal(money(200));
        invoice->setAmountPaid(money(0));
        invoice->setOtherPayment(money(0));
        invoice->setNetDue(money(200));
        invoice->setAcctCode("1-100");
        auto* line = new EntityInvoiceDetail(m_records.get());
        line->setItem(known<EntityItem>(1));
        line->setQty(2);
        line->setPriceEach(money(100));
        line->setTotal(money(200));
        link->setDetails({line});
        return mapper->insert(link);
    }

    EntityInvoiceFastFood* sellOverTheCounter()
    {
        auto* sale = new EntityInvoiceFastFood(m_records.get());
        sale->setEmployee(known<EntityEmployee>(1));
        sale->setAgent(known<EntityAgent>(1));
        sale->setPemesan("Mary");
        return sell(m_mappers->invoiceFastFoodMapper(), sale) ? sale : nullptr;
    }

    EntityBawaPulang* takeAwayOrder()
    {
        auto* order = new EntityBawaPulang(m_records.get());
        order->setStatus(EntityOrder::WAITING_FOR_MENU);
        order->setMember(known<EntityMember>(1));
        order->setTgl(QDate(2026, 3, 1));
        auto* line = new EntityBawaPulangDetail(m_records.get());
        line->setItem(known<EntityItem>(1));
        line->setQty(2);
        line->setPriceEach(money(100));
        line->setTotal(money(200));
        order->setDetails({line});
        return order;
    }

    int count(const QString& table) { return m_database->value("select count(*) from " + table).toInt(); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<QObject> m_records;
    const ZavelMapperRegistry* m_mappers = nullptr;
};

QTEST_MAIN(TestSalesRecords)
#include "tst_sales_records.moc"
