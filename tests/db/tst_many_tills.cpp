#include "app/context/EntityPool.h"
#include "app/numbers/BusinessKey.h"
#include "app/numbers/DataMapperKey.h"
#include "app/numbers/EntityKey.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"
#include "pos/totals/InvoiceTotals.h"
#include "support/DatabaseTest.h"
#include "support/PurchasingRows.h"
#include "support/SalesRows.h"
#include "support/TripCount.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/DataMapperMeja.h"

#include <QMutex>
#include <QThread>

#include <vector>

namespace
{
/**
 * The saving part of a workstation: its own mappers and services, for one thread with its own connection. It sells the
 * items of ShopRows.h.
 */
class Till
{
public:
    Till() : m_sales(nullptr, &m_dineInvoices, services()) {}

    bool dine()
    {
        EntityMeja table;
        table.setId(1);
        table.setKode("T1");
        EntityMakanDitempat order;
        order.setMeja(&table);
        order.setTgl(today);
        order.setStatus(EntityOrder::WAITING_FOR_MENU);
        EntityMakanDitempatDetail first;
        EntityMakanDitempatDetail second;
        for (auto* line : {&first, &second}) {
            line->setItem(&m_rice);
            line->setQty(1);
            line->setPriceEach(money(100, line));
            line->setTotal(money(100, line));
        }
        order.setDetails({&first, &second});
        if (!m_sales.insertNewOrder(&order))
            return false;
        EntityInvoiceMakanDitempat bill;
        bill.setMakanDitempat(&order);
        bill.setKnownBills({});
        return sell(bill);
    }
    bool fastFood()
    {
        EntityInvoiceFastFood sale;
        return sell(sale);
    }
    bool purchase()
    {
        EntitySupplier market;
        market.setId(1);
        EntityAcquisition purchase;
        purchase.setPurchaseDate(today);
        purchase.setDueDate(today);
        purchase.setSupplier(&market);
        for (auto set : {&EntityAcquisition::setSubtotal, &EntityAcquisition::setDiscount, &EntityAcquisition::setTax,
                         &EntityAcquisition::setGrandTotal, &EntityAcquisition::setAmountPaid,
                         &EntityAcquisition::setNetDue, &EntityAcquisition::setOtherPayment})
            (purchase.*set)(money(0, &purchase));
        EntityAcquisitionDetail line;
        line.setItem(&m_rice);
        line.setQty(1);
        line.setPriceEach(money(1, &line));
        line.setDiscount(money(0, &line));
        line.setTotalPrice(money(1, &line));
        purchase.setDetails({&line});
        return m_purchasing.insert(&purchase);
    }
    bool cashEntry()
    {
        EntityCashFlow entry;
        entry.setDate(today);
        entry.setAccountCode("1-100");
        entry.setDebet(money(1, &entry));
        entry.setCredit(money(0, &entry));
        const bool saved = m_cash.insert(&entry);
        m_cashError = m_cash.takeError();
        return saved;
    }
    bool changeNumber()
    {
        auto* key = static_cast<EntityKey*>(m_keys.findByColumn("key_name", QString("TRF")));
        return m_numbers.update(key);
    }
    bool removeOrder() { return m_sales.removeOrder(m_sales.findOrder(1)); }
    bool removeSale() { return m_sales.deleteSales(static_cast<Invoice*>(m_invoices.findById(1))); }
    bool removeMembersPayment() { return m_sales.remove(m_sales.findPiutang(1)); }
    bool removeCommission() { return m_sales.remove(m_sales.findKomisiAgen(1)); }
    bool removePurchase() { return m_purchasing.remove(m_purchasing.find(1)); }

    QString takeErrors()
    {
        return m_sales.takeErrors() + m_purchasing.takeErrors() + m_numbers.takeErrors() + m_cashError;
    }

private:
    static Money* money(double amount, QObject* parent) { return new Money(parent, amount, "Rp"); }

    template <class Sale>
    bool sell(Sale& sale)
    {
        EntityInvoiceDetail first;
        EntityInvoiceDetail second;
        for (EntityInvoiceDetail* line : {&first, &second}) {
            line->setItem(&m_rice);
            line->setQty(1);
            line->setPriceEach(money(100, line));
            line->recomputeTotal();
        }
        sale.setDetails({&first, &second});
        InvoiceTotals totals;
        totals.setCurrency("Rp");
        totals.setSubtotal(200);
        totals.setPaid(200);
        totals.writeTo(sale.getInvoice());
        sale.getInvoice()->setInvoiceDate(today);
        sale.getInvoice()->setAcctCode("1-100");
        return m_sales.insertInvoice(&sale) && !m_sales.hasError();
    }
    BusinessPenjualan::Mappers services()
    {
        m_rice.setId(1);
        BusinessPenjualan::Mappers mappers;
        mappers.dineInvoices = &m_dineInvoices;
        mappers.fastFoodInvoices = &m_fastFoodInvoices;
        mappers.dineOrders = &m_orders;
        mappers.invoices = &m_invoices;
        mappers.receivables = &m_receivables;
        mappers.commissions = &m_commissions;
        return mappers;
    }

    const QDate today = QDate(2026, 3, 1);
    EntityItem m_rice;
    QString m_cashError;
    DataMapperKey m_keys{nullptr};
    DataMapperBank m_accounts{nullptr};
    DataMapperSatuan m_units{nullptr};
    DataMapperJenisItem m_types{nullptr};
    DataMapperItem m_items{nullptr, &m_types, &m_units, &m_accounts};
    DataMapperEmployee m_employees{nullptr};
    DataMapperMember m_members{nullptr};
    DataMapperAgent m_agents{nullptr, &m_accounts};
    DataMapperSupplier m_suppliers{nullptr, &m_accounts};
    DataMapperMeja m_tables{nullptr};
    ItemPartners m_lines{&m_items, &m_types, &m_units};
    DataMapperInvoice m_invoices{nullptr, {&m_employees, &m_agents, &m_members, &m_accounts, &m_keys}, m_lines};
    DataMapperMakanDitempat m_orders{nullptr, &m_members, &m_tables, m_lines};
    DataMapperInvoiceMakanDitempat m_dineInvoices{nullptr, &m_invoices, &m_orders};
    DataMapperInvoiceFastFood m_fastFoodInvoices{nullptr, &m_invoices};
    DataMapperPiutang m_receivables{nullptr, &m_keys, &m_members, &m_accounts, &m_invoices, &m_employees, &m_agents};
    DataMapperKomisiAgen m_commissions{nullptr, &m_keys, &m_agents, &m_accounts, &m_invoices};
    DataMapperPurchaseOrder m_purchaseOrders{nullptr, &m_keys, &m_suppliers, &m_accounts, m_lines};
    DataMapperAcquisition m_purchases{nullptr, &m_keys, &m_suppliers, &m_accounts, &m_purchaseOrders, m_lines};
    DataMapperItemHistory m_journal{nullptr, &m_items, &m_types, &m_units};
    DataMapperCashFlow m_cash{nullptr, &m_keys};
    BusinessKey m_numbers{nullptr, &m_keys};
    BusinessPurchases m_purchasing{nullptr, &m_purchases, &m_journal};
    BusinessPenjualan m_sales;
};

using Save = bool (Till::*)();
} // namespace

Q_DECLARE_METATYPE(Save)

/** Several workstations use the same documents and numbers at the same time. */
class TestManyTills : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override { insertShop(*m_database); }

private slots:
    void aSaleOverTheCounterTakesFewTrips()
    {
        Till here;
        EntityPool pool;
        const EntityPoolScope scope(pool);
        QVERIFY2(here.fastFood(), qPrintable(here.takeErrors()));
        // The round trips: begin with the lock; read and increase the number; the invoice; its link with the lines;
        // commit.
        const TripCount trips;
        QVERIFY2(here.fastFood(), qPrintable(here.takeErrors()));
        QVERIFY2(trips.sent().size() <= 6, qPrintable(trips.sent().join('\n')));
    }

    void whoSavesWithoutAPauseWaitsAndIsNeverRefused()
    {
        constexpr int tills = 8;
        constexpr int documents = 25;
        QMutex mutex;
        QStringList refusals;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int till = 0; till < tills; ++till) {
            threads.emplace_back(QThread::create([&, till] {
                Till here;
                for (int i = 0; i < documents; ++i) {
                    const Save saves[] = {&Till::dine, &Till::fastFood, &Till::purchase, &Till::dine, &Till::cashEntry};
                    EntityPool pool;
                    const EntityPoolScope scope(pool);
                    if ((here.*saves[(i + till) % 5])())
                        continue;
                    const QMutexLocker lock(&mutex);
                    refusals.append(here.takeErrors());
                }
            }));
            threads.back()->start();
        }
        for (const auto& thread : threads)
            QVERIFY(thread->wait(60000));

        QVERIFY2(refusals.isEmpty(), qPrintable(refusals.join('\n')));
        // The number of documents per kind matches the saves, without gaps in their numbers.
        const QString kinds =
            "(SELECT invoice_type AS kind, no FROM invoice UNION ALL SELECT 'NB', no FROM acquisition "
            "UNION ALL SELECT 'KK', trans_no FROM cash_flow) kinds";
        QCOMPARE(value("SELECT string_agg(row::text, ' ') FROM (SELECT (kind, count(*), count(DISTINCT no), min(no), "
                       "max(no) = kind || '-' || lpad((6 + count(*))::text, 4, '0')) AS row FROM " +
                       kinds + " GROUP BY kind ORDER BY kind) rows"),
                 QString("(KK,40,40,KK-0007,t) (NB,40,40,NB-0007,t) (TRD,80,80,TRD-0007,t) (TRF,40,40,TRF-0007,t)"));
        QCOMPARE(value("SELECT string_agg(DISTINCT status::text, ',') FROM makan_ditempat"),
                 QString::number(EntityOrder::PAID));
        QCOMPARE(value("SELECT deadlocks FROM pg_stat_database WHERE datname = current_database()"), QString("0"));
    }

    void aLockThatCanNotBeHadIsTheFailureOfTheSave_data()
    {
        const auto row = addColumns<QString, Save, QString>("held", "save", "frame");
        row("a sale's number", numberLock("TRF"), Save(&Till::fastFood), "error: insert fast food invoice");
        row("a purchase's number", numberLock("NB"), Save(&Till::purchase), "error: insert Purchase failed");
        row("an entry's number", numberLock("KK"), Save(&Till::cashEntry), "");
        row("the numbers' form", numberLock("TRF"), Save(&Till::changeNumber), "");
        row("a table", "SELECT 1 FROM meja FOR UPDATE", Save(&Till::dine), "error: insert dine failed");
        row("a bill's number", numberLock("TRD"), Save(&Till::dine), "error: insert dine invoice failed");
        row("the number's row itself", "SELECT 1 FROM keytable FOR UPDATE", Save(&Till::fastFood),
            "error: insert fast food invoice");
    }
    void aLockThatCanNotBeHadIsTheFailureOfTheSave()
    {
        FETCH(QString, held, frame);
        QFETCH(Save, save);
        KorQuery().exec("SET lock_timeout = '100ms'");
        EntityPool pool;
        const EntityPoolScope scope(pool);
        Till here;
        run("BEGIN; " + held);
        QVERIFY(!(here.*save)());
        run("ROLLBACK");
        const QString errors = here.takeErrors();
        QVERIFY2(errors.startsWith(frame) && errors.contains("canceling statement due to lock timeout"),
                 qPrintable(errors));
        QVERIFY2(KorToldFailure::in(errors).sentence.startsWith("Another workstation"), qPrintable(errors));
        QCOMPARE(value("SELECT sum(next_id) FROM keytable"), QString::number(7 * 11));

        // Nothing was written, and the same save succeeds when the lock is free.
        QVERIFY2((here.*save)(), qPrintable(here.takeErrors()));
    }

    void whoRemovesADocumentAndWhoSavesItDoNotWaitForEachOther_data()
    {
        const auto row = addColumns<QString, QString, Save>("document", "line", "removal");
        row("an order", "makan_ditempat", "makan_ditempat_detail", Save(&Till::removeOrder));
        row("a sale", "invoice", "invoice_fast_food", Save(&Till::removeSale));
        row("a purchase", "acquisition", "acquisition_detail", Save(&Till::removePurchase));
        row("a member's payment", "piutang", "piutang_detail", Save(&Till::removeMembersPayment));
        row("a commission", "komisi_agen", "komisi_agen_detail", Save(&Till::removeCommission));
    }
    void whoRemovesADocumentAndWhoSavesItDoNotWaitForEachOther()
    {
        FETCH(QString, document, line);
        QFETCH(Save, removal);
        insertDineOrder(*m_database, {{1, 100}});
        insertSale(*m_database, {"TRF-0001", "TRF"});
        insertPurchase(*m_database, {"NB-0001", ""});
        for (const char* table : {"piutang", "piutang_detail", "komisi_agen", "komisi_agen_detail"})
            insert(table, {});

        // A save writes the document, then its lines. The removal begins between the two.
        const QString change = "UPDATE %1 SET version = version + 1";
        run("BEGIN; " + change.arg(document));
        bool removed = true;
        QString errors;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            EntityPool pool;
            const EntityPoolScope scope(pool);
            Till there;
            removed = (there.*removal)();
            errors = there.takeErrors();
        }));
        other->start();
        QTRY_COMPARE(value("SELECT count(*) FROM pg_locks WHERE NOT granted"), QString("1"));
        run(change.arg(line));
        run("COMMIT");
        QVERIFY(other->wait());
        QVERIFY(!removed);
        QVERIFY2(errors.contains("has been updated by user id"), qPrintable(errors));
    }
};

QTEST_MAIN(TestManyTills)
#include "tst_many_tills.moc"
