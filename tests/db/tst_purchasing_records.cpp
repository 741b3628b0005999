#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

#include <QTest>

/** What the documents of purchasing keep, and what a save that fails leaves behind. */
class TestPurchasingRecords : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        m_records = std::make_unique<QObject>();
        loginAsAdmin();
        insertShop(*m_database);
    }

    void cleanup() { m_database.reset(); }
    void anOrderIsReadBackWithItsSupplierAndItsNumber()
    {
        DataMapperPurchaseOrder* orders = PosMapperRegistry::instance()->purchaseOrderMapper();
        EntityPurchaseOrder* saved = order();
        EntityPurchaseOrderDetail* first = orderLine(1);
        EntityPurchaseOrderDetail* second = orderLine(1);
        saved->setDetails({first, second});
        QVERIFY2(orders->insert(saved), qPrintable(orders->takeError()));

        auto* found = static_cast<EntityPurchaseOrder*>(orders->findById(saved->getId()));
        QVERIFY2(found, qPrintable(orders->takeError()));
        QCOMPARE(found->getNo(), QString("PO-0007"));
        QCOMPARE(found->getSupplier()->getNama(), QString("Market"));
        QVERIFY(!found->getBank());
        QCOMPARE(found->getDeposit()->getAmount(), 5.0);
        QCOMPARE(found->getShipDate().date(), QDate(2026, 3, 2));

        auto* line = static_cast<EntityPurchaseOrderDetail*>(orders->lineMapper()->findById(first->getId()));
        QVERIFY(line);
        QCOMPARE(line->getPurchaseOrderId(), saved->getId());
        QCOMPARE(line->getItem()->getSatuan()->getKode(), QString("KG"));
        QCOMPARE(line->getItem()->getJenis()->getKode(), QString("FOOD"));

        found->setDetails({second, orderLine(1)});
        found->setRemovedDetails({first});
        QVERIFY2(orders->update(found), qPrintable(orders->takeError()));
        QCOMPARE(count("purchase_order_detail"), 2);
        QVERIFY(!orders->lineMapper()->findById(first->getId()));
    }

    void anOrderWithABadLineGivesItsNumberBack()
    {
        DataMapperPurchaseOrder* orders = PosMapperRegistry::instance()->purchaseOrderMapper();
        EntityPurchaseOrder* saved = order();
        saved->setDetails({orderLine(1), orderLine(99)});
        QVERIFY(!orders->insert(saved));
        QVERIFY(orders->takeError().startsWith("error: insert PO detail failed"));
        QVERIFY(!saved->isSaved());
        QCOMPARE(count("purchase_order") + count("purchase_order_detail"), 0);
        QCOMPARE(m_database->value("select next_id from keytable where key_name = 'PO'").toInt(), 7);

        m_database->run("DELETE FROM keytable");
        QVERIFY(!orders->insert(saved));
        const QString error = orders->takeError();
        QVERIFY2(error.startsWith("error: insert PO failed"), qPrintable(error));
        QVERIFY2(error.contains("Can not draw a new number for PO"), qPrintable(error));
    }

    void aPurchaseTakenBackForALineStillCountsAsDone()
    {
        DataMapperAcquisition* purchases = PosMapperRegistry::instance()->acquisitionMapper();
        EntityAcquisition* saved = purchase();
        auto* line = new EntityAcquisitionDetail(m_records.get());
        line->setItem(known<EntityItem>(99));
        line->setPriceEach(money(10));
        line->setDiscount(money(0));
        line->setTotalPrice(money(10));
        saved->setDetails({line});
        QVERIFY(purchases->insert(saved));
        QVERIFY(purchases->takeError().startsWith("error: insert Purchase detail failed.\r\n"));
        QCOMPARE(count("acquisition"), 0);

        // A header that fails is no success.
        saved->setSupplier(nullptr);
        QVERIFY(!purchases->insert(saved));
        QVERIFY(purchases->takeError().startsWith("error: insert Purchase failed"));
    }

    void clearingOrdersEmptiesThemAndKeepsTheSuppliers()
    {
        DataMapperPurchaseOrder* orders = PosMapperRegistry::instance()->purchaseOrderMapper();
        EntityPurchaseOrder* saved = order();
        saved->setDetails({orderLine(1)});
        QVERIFY2(orders->insert(saved), qPrintable(orders->takeError()));
        QVERIFY(PosBusinessRegistry::instance()->purchaseOrder()->clearTransactions());
        QCOMPARE(count("purchase_order") + count("purchase_order_detail"), 0);
        QCOMPARE(count("supplier"), 1);
    }

private:
    /** A record that the next line of a document can point at, known by its id alone. */
    template <class Entity>
    Entity* known(int id)
    {
        auto* entity = new Entity(m_records.get());
        entity->setId(id);
        return entity;
    }

    Money* money(double amount) { return new Money(m_records.get(), amount, "Rp"); }
    EntityPurchaseOrder* order()
    {
        auto* order = new EntityPurchaseOrder(m_records.get());
        order->setDate(QDateTime(QDate(2026, 3, 1), QTime(0, 0)));
        order->setShipDate(QDateTime(QDate(2026, 3, 2), QTime(0, 0)));
        order->setSupplier(known<EntitySupplier>(1));
        order->setStatus(EntityPurchaseOrder::RELEASED);
        order->setDeposit(money(5));
        order->setSubTotal(money(30));
        order->setDiscount(money(0));
        order->setTax(money(0));
        order->setGrandTotal(money(30));
        return order;
    }

    EntityPurchaseOrderDetail* orderLine(int itemId)
    {
        auto* line = new EntityPurchaseOrderDetail(m_records.get());
        line->setItem(known<EntityItem>(itemId));
        line->setJumlah(3);
        line->setPrice(money(10));
        line->setDiscount(money(0));
        line->setTotalPrice(money(30));
        return line;
    }

    EntityAcquisition* purchase()
    {
        auto* purchase = new EntityAcquisition(m_records.get());
        purchase->setPurchaseDate(QDate(2026, 3, 3));
        purchase->setDueDate(QDate(2026, 4, 3));
        purchase->setSupplier(known<EntitySupplier>(1));
        purchase->setBank(known<EntityBank>(1));
        purchase->setSubtotal(money(30));
        purchase->setDiscount(money(0));
        purchase->setTax(money(0));
        purchase->setGrandTotal(money(30));
        purchase->setAmountPaid(money(0));
        purchase->setNetDue(money(30));
        purchase->setOtherPayment(money(0));
        return purchase;
    }

    int count(const QString& table) { return m_database->value("select count(*) from " + table).toInt(); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<QObject> m_records;
};

QTEST_MAIN(TestPurchasingRecords)
#include "tst_purchasing_records.moc"
