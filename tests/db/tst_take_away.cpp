#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QTest>

/** Orders to take away: they follow their one invoice, and leave the list when the guest has the food. */
class TestTakeAway : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        loginAsAdmin();
        m_make = std::make_unique<Builders>();
        m_sales = service<BusinessPenjualan>("Sales");
        m_rice = m_make->item("RICE", "Rice", 10000);
        m_tea = m_make->item("TEA", "Tea", 5000);
    }

    void cleanup()
    {
        m_make.reset();
        m_database.reset();
    }

    void anOrderIsKeptUntilMoneyWasTaken_data()
    {
        addColumns<int, bool>("paid", "removed");
        addRow("no invoice", -1, true);
        addRow("paid", 25000, false);
        addRow("partly paid", 1, false);
    }

    void anOrderIsKeptUntilMoneyWasTaken()
    {
        QFETCH(int, paid);
        QFETCH(bool, removed);
        EntityBawaPulang* order = m_make->takeAway({{m_rice, 2}, {m_tea, 1}}, "Ann");
        if (paid >= 0)
            m_make->invoice(order, paid);
        QCOMPARE(m_sales->removeOrder(m_sales->findOrderBawaPulang(order->getId())), removed);
        QCOMPARE(m_sales->takeErrors(), removed ? QString() : QString("This order is already paid\r\n"));
        QCOMPARE(m_database->value("SELECT count(*) FROM bawa_pulang_detail").toInt(), removed ? 0 : 2);
    }

    void theOrderFollowsItsInvoiceUntilTheFoodIsTaken()
    {
        EntityBawaPulang* order = m_make->takeAway({{m_rice, 2}, {m_tea, 1}}, "Ann");
        QVERIFY(m_sales->getInvoicesOfBawaPulang(order->getId()).isEmpty());
        const int invoiceId = m_make->invoice(order, 0)->getInvoice()->getId();
        QCOMPARE(status(order), int(EntityOrder::UNPAID));

        for (const auto& step : {qMakePair(10000, EntityOrder::PARTIALY_PAID), qMakePair(25000, EntityOrder::PAID)}) {
            EntityInvoiceBawaPulang* sale = m_sales->getInvoicesOfBawaPulang(order->getId()).value(0);
            QVERIFY(sale);
            QCOMPARE(sale->getDetails().size(), 2);
            sale->getInvoice()->setAmountPaid(new Money(sale, step.first, "Rp"));
            QVERIFY2(m_sales->updateInvoice(sale), qPrintable(m_sales->takeErrors()));
            QCOMPARE(status(order), int(step.second));
        }
        const EntityInvoiceBawaPulang* found = m_sales->findBawaPulangByInvoiceId(invoiceId);
        QVERIFY(found);
        QCOMPARE(found->getInvoice()->getInvoiceType(), QString("TRP"));
        QCOMPARE(found->getBawaPulang()->getDetails().size(), 2);

        // The order in hand is older than the row by now.
        QVERIFY2(m_sales->bawaPulangSelesai(order), qPrintable(m_sales->takeErrors()));
        QCOMPARE(status(order), int(EntityOrder::DONE));
        m_database->run("TRUNCATE bawa_pulang CASCADE");
        QVERIFY(!m_sales->bawaPulangSelesai(order));
        QCOMPARE(m_sales->takeErrors(), QString("Can not find entity with id: %1\r\n").arg(order->getId()));
    }

    void theListNarrowsToAStatusAndCostsTwoStatements()
    {
        const int many = 12;
        m_make->takeAway({{m_rice, 1}, {m_tea, 2}}, "Ann");
        m_make->invoice(m_make->takeAway({{m_rice, 1}}, "Bob"), 10000);
        m_make->invoice(m_make->takeAway({{m_rice, 1}}, "Cid"), 1000);
        m_make->invoice(m_make->takeAway({{m_rice, 1}}, "Dot"), 0);
        QVERIFY(m_sales->bawaPulangSelesai(m_make->takeAway({{m_rice, 1}}, "Eve")));
        QCOMPARE(guests(0), (QStringList{"Ann:2", "Bob:1", "Cid:1", "Dot:1"}));
        QCOMPARE(guests(EntityOrder::WAITING_FOR_MENU), QStringList{"Ann:2"});
        QCOMPARE(guests(EntityOrder::PAID), QStringList{"Bob:1"});
        QCOMPARE(guests(EntityOrder::PARTIALY_PAID), QStringList{"Cid:1"});

        for (int i = 0; i < many; ++i)
            m_make->takeAway({{m_rice, 1}, {m_tea, 1}});
        const StatementCount reading;
        QCOMPARE(m_sales->getBawaPulangList(0).size(), 4 + many);
        QVERIFY2(reading.count() <= 3, qPrintable(QString::number(reading.count())));
    }

    void anOrderThatSomebodyElseChangedIsNotOverwritten()
    {
        EntityBawaPulang* order = m_make->takeAway({{m_rice, 2}}, "Ann");
        EntityBawaPulang* mine = m_sales->findOrderBawaPulang(order->getId());
        m_database->run("UPDATE bawa_pulang SET version = 2, pemesan = 'Bob', updatedby = 5");
        mine->setPemesan("Cid");
        QVERIFY(!m_sales->updateOrder(mine));
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error: update take away food detail failed"), qPrintable(told));
        QVERIFY2(told.contains("has been updated by user id"), qPrintable(told));
        QCOMPARE(guests(0), QStringList{"Bob:1"});
    }

private:
    [[nodiscard]] int status(const EntityBawaPulang* order) const
    {
        return m_database->value(QString("SELECT status FROM bawa_pulang WHERE id = %1").arg(order->getId())).toInt();
    }

    [[nodiscard]] QStringList guests(int status) const
    {
        QStringList names;
        const QList<EntityBawaPulang*> orders = m_sales->getBawaPulangList(status);
        for (const EntityBawaPulang* order : orders)
            names.append(QString("%1:%2").arg(order->getPemesan()).arg(order->getDetails().size()));
        return names;
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<Builders> m_make;
    BusinessPenjualan* m_sales = nullptr;
    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
};

QTEST_MAIN(TestTakeAway)
#include "tst_take_away.moc"
