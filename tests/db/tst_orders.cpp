#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/Rows.h"
#include "support/SlowNeighbour.h"
#include "support/TestDatabase.h"
#include "support/TripCount.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QTest>

/** The orders on tables: who may sit where, what the kitchen is told, and what two waiters do to one order. */
class TestOrders : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>();
        loginAsAdmin();
        m_make = std::make_unique<Builders>();
        m_sales = service<BusinessPenjualan>("Sales");
    }

    void cleanup()
    {
        m_make.reset();
        m_database.reset();
    }

    void aTableCarriesOneOrderAsFarAsItsCodeIsInSmallLetters_data()
    {
        addColumns<QString, QString, bool>("code", "name", "refused");
        addRow("small letters", "t1", "Terrace", true);
        addRow("a capital", "T1", "Terrace", false);
        addRow("a capital, and a name of the same letters", "Bar", "bar", false);
        addRow("an apostrophe", "o'b", "O'Brien's", true);
    }

    void aTableCarriesOneOrderAsFarAsItsCodeIsInSmallLetters()
    {
        QFETCH(QString, code);
        QFETCH(QString, name);
        QFETCH(bool, refused);
        EntityMeja* table = m_make->table(code, name);
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityMakanDitempat* first = m_make->order(table, {m_make->line(rice, 1)});
        QVERIFY2(m_sales->insertNewOrder(first), qPrintable(m_sales->takeErrors()));

        EntityMakanDitempat* second = m_make->order(table, {m_make->line(rice, 2)});
        QCOMPARE(m_sales->insertNewOrder(second), !refused);
        QCOMPARE(m_sales->takeErrors(), refused ? QString("Meja sudah terisi\r\n") : QString());
        QCOMPARE(second->isSaved(), !refused);

        // The guests have gone: the table is free for others.
        QVERIFY(m_sales->makanDitempatSelesai(first));
        QCOMPARE(stored("status", first).toInt(), int(EntityOrder::DONE));
        if (refused)
            QVERIFY2(m_sales->insertNewOrder(second), qPrintable(m_sales->takeErrors()));
    }

    void ofTwoWaitersAtOneTableOneIsRefused()
    {
        EntityMeja* table = m_make->table("t1");
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        // The other one is at it, and done a moment later.
        const QString id = QString::number(table->getId());
        const SlowNeighbour other(*m_database, {"SELECT 1 FROM meja WHERE id = " + id + " FOR UPDATE",
                                                "INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, version) "
                                                "VALUES (1, " +
                                                    id + ", 'Bob', current_date, 1)"});
        EntityMakanDitempat* order = m_make->order(table, {m_make->line(rice, 1)});
        QVERIFY(!m_sales->insertNewOrder(order));
        QCOMPARE(m_sales->takeErrors(), QString("Meja sudah terisi\r\n"));
        QCOMPARE(m_database->value("SELECT string_agg(pemesan, ',') FROM makan_ditempat").toString(), QString("Bob"));
    }

    void anOrderMovesOntoATakenTable()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityMeja* taken = m_make->table("t1");
        m_make->openOrder(taken, {m_make->line(rice, 1)});
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("t2"), {m_make->line(rice, 1)});
        order->moveTo(taken);
        QVERIFY2(m_sales->updateOrder(order), qPrintable(m_sales->takeErrors()));
        QCOMPARE(m_sales->getMakanDitempatList(0, "t1").size(), 2);
    }

    void aMovedOrderRemembersTheTablesItLeft()
    {
        EntityMakanDitempat* order =
            m_make->openOrder(m_make->table("A"), {m_make->line(m_make->item("RICE", "Rice", 10000), 1)});
        for (const char* code : {"B", "C"}) {
            EntityMakanDitempat* found = m_sales->findOrder(order->getId());
            EntityMeja* table = m_make->table(code);
            found->moveTo(table);
            found->moveTo(table);
            QVERIFY2(m_sales->updateOrder(found), qPrintable(m_sales->takeErrors()));
        }
        QCOMPARE(stored("pindah_meja", order), QString("A>B"));
    }

    void theKitchenIsToldWhatIsOtherThanBefore_data()
    {
        addColumns<int, QString, bool, int>("qty", "description", "otherItem", "status");
        addRow("nothing", 2, "hot", false, 0);
        addRow("quantity", 3, "hot", false, int(EntityOrderDetail::UPDATED));
        addRow("notes", 2, "mild", false, int(EntityOrderDetail::UPDATED));
        addRow("both", 1, "", false, int(EntityOrderDetail::UPDATED));
        addRow("another item", 2, "hot", true, int(EntityOrderDetail::NEW));
    }

    void theKitchenIsToldWhatIsOtherThanBefore()
    {
        QFETCH(int, qty);
        QFETCH(QString, description);
        QFETCH(bool, otherItem);
        QFETCH(int, status);
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityItem* tea = m_make->item("TEA", "Tea", 5000);
        EntityMakanDitempatDetail* line = m_make->line(rice, 2, "hot");
        EntityMakanDitempatDetail* untouched = m_make->line(tea, 1);
        untouched->setStatus(EntityOrderDetail::OUT_OF_STOCK);
        EntityMakanDitempat* order = m_make->order(m_make->table("t1"), {untouched, line});
        order->takeSnapshot();

        line->setQty(qty);
        line->setDescription(description);
        if (otherItem)
            line->setItem(m_make->item("SOUP", "Soup", 7000));
        order->compareWithSnapshot();

        const EntityOrder::Lines told = status ? EntityOrder::Lines{line} : EntityOrder::Lines();
        QCOMPARE(order->getChangedDetails(), told);
        QCOMPARE(order->getNewDetails(), status == EntityOrderDetail::NEW ? told : EntityOrder::Lines());
        QCOMPARE(order->getUpdatedDetails(), status == EntityOrderDetail::UPDATED ? told : EntityOrder::Lines());
        if (status)
            QCOMPARE(line->getStatus(), status);
        QCOMPARE(untouched->getStatus(), int(EntityOrderDetail::OUT_OF_STOCK));
    }

    void linesForAStandingOrderRaiseQuantitiesAndLeaveTotals()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityItem* tea = m_make->item("TEA", "Tea", 5000);
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("t1"), {m_make->line(rice, 2)});
        EntityMakanDitempatDetail* moreRice = m_make->line(rice, 3);
        EntityMakanDitempatDetail* oneTea = m_make->line(tea, 1);

        EntityMakanDitempat* found = m_sales->findOrder(order->getId());
        found->mergeLines({moreRice, oneTea});
        QCOMPARE(found->getChangedDetails(), (EntityOrder::Lines{moreRice, oneTea}));
        QCOMPARE(moreRice->getStatus(), int(EntityOrderDetail::UPDATED));
        QCOMPARE(oneTea->getStatus(), int(EntityOrderDetail::NEW));
        QVERIFY2(m_sales->updateOrder(found), qPrintable(m_sales->takeErrors()));

        const EntityOrder::Lines lines = m_sales->findOrder(order->getId())->getDetails();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0]->getQty(), 5);
        QCOMPARE(lines[0]->getTotal()->getAmount(), 20000.0);
        QCOMPARE(lines[0]->getStatus(), int(EntityOrderDetail::UPDATED));
        QCOMPARE(lines[1]->getTotal()->getAmount(), 5000.0);
    }

    void markedLinesAreListedAgainForAReprint()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityMakanDitempatDetail* fresh = m_make->line(rice, 1);
        EntityMakanDitempatDetail* changed = m_make->line(rice, 2);
        changed->setStatus(EntityOrderDetail::UPDATED);
        EntityMakanDitempatDetail* cooking = m_make->line(rice, 3);
        cooking->setStatus(EntityOrderDetail::IN_PROGRESS);
        EntityMakanDitempat* order = m_make->order(m_make->table("t1"), {changed, cooking, fresh});
        order->collectMarkedLines();
        QCOMPARE(order->getChangedDetails(), (EntityOrder::Lines{changed, fresh}));
        QCOMPARE(order->getNewDetails(), EntityOrder::Lines{fresh});
        QCOMPARE(order->getUpdatedDetails(), EntityOrder::Lines{changed});
    }

    void anEditAddsChangesAndTakesLinesAwayInOneSave()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityItem* tea = m_make->item("TEA", "Tea", 5000);
        EntityItem* soup = m_make->item("SOUP", "Soup", 7000);
        EntityMakanDitempat* order =
            m_make->openOrder(m_make->table("t1"), {m_make->line(rice, 1), m_make->line(tea, 1)}, "Ann");

        EntityMakanDitempat* found = m_sales->findOrder(order->getId());
        QCOMPARE(found->getPemesan(), QString("Ann"));
        EntityOrder::Lines lines = found->getDetails();
        EntityOrderDetail* gone = lines.takeFirst();
        lines.first()->setQty(4);
        lines.append(m_make->line(soup, 1, "no salt"));
        found->setDetails(lines);
        // A line that was keyed in and taken off again before the save has no row to remove.
        found->setRemovedDetails({gone, m_make->line(rice, 9)});
        QVERIFY2(m_sales->updateOrder(found), qPrintable(m_sales->takeErrors()));

        const EntityOrder::Lines now = m_sales->findOrder(order->getId())->getDetails();
        QCOMPARE(now.size(), 2);
        QCOMPARE(now[0]->getItem()->getNama(), QString("Tea"));
        QCOMPARE(now[0]->getQty(), 4);
        QCOMPARE(now[1]->getItem()->getSatuan()->getNama(), soup->getSatuan()->getNama());
        QCOMPARE(now[1]->getDescription(), QString("no salt"));
    }

    void theSecondOfTwoWaitersIsRefusedAndChangesNothing()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("t1"), {m_make->line(rice, 1)}, "Ann");
        EntityMakanDitempat* mine = m_sales->findOrder(order->getId());
        EntityMakanDitempat* theirs = m_sales->findOrder(order->getId());
        theirs->setPemesan("Bob");
        QVERIFY(m_sales->updateOrder(theirs));

        mine->setPemesan("Cid");
        EntityMakanDitempatDetail* added = m_make->line(rice, 7);
        mine->setDetails(mine->getDetails() + EntityOrder::Lines{added});
        QVERIFY(!m_sales->updateOrder(mine));
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error: update dine failed"), qPrintable(told));
        QVERIFY2(told.contains("has been updated by user id"), qPrintable(told));
        QCOMPARE(stored("pemesan", order), QString("Bob"));
        QVERIFY(!added->isSaved());
        QCOMPARE(m_database->value("SELECT count(*) FROM makan_ditempat_detail").toInt(), 1);
    }

    void aLineThatFailsTakesTheWholeOrderBack()
    {
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        EntityItem* gone = m_make->item("GONE", "Off the menu", 10000);
        m_database->run("DELETE FROM item WHERE kode = 'GONE'");
        EntityMakanDitempat* order =
            m_make->order(m_make->table("t1"), {m_make->line(rice, 1), m_make->line(gone, 1), m_make->line(rice, 2)});
        QVERIFY(!m_sales->insertNewOrder(order));
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error: insert dine detail failed.\r\n"), qPrintable(told));
        QVERIFY2(told.contains("violates foreign key constraint \"makan_ditempat_detail_item_id_fkey\""),
                 qPrintable(told));
        QVERIFY(!order->isSaved());
        for (const EntityOrderDetail* line : order->getDetails())
            QVERIFY(!line->isSaved());
        QCOMPARE(m_database->value("SELECT count(*) FROM makan_ditempat").toInt(), 0);
        // The form is still open: without the bad line it is saved as if nothing had been.
        order->setDetails(order->getDetails().mid(0, 1));
        QVERIFY2(m_sales->insertNewOrder(order), qPrintable(m_sales->takeErrors()));
    }

    void aPaidOrderIsNotRemoved_data()
    {
        addColumns<int, bool>("status", "removed");
        addRow("waiting", int(EntityOrder::WAITING_FOR_MENU), true);
        addRow("unpaid", int(EntityOrder::UNPAID), true);
        addRow("paid", int(EntityOrder::PAID), false);
        addRow("partly paid", int(EntityOrder::PARTIALY_PAID), false);
    }

    void aPaidOrderIsNotRemoved()
    {
        QFETCH(int, status);
        QFETCH(bool, removed);
        EntityMakanDitempat* order =
            m_make->openOrder(m_make->table("t1"), {m_make->line(m_make->item("RICE", "Rice", 10000), 1)});
        order->setStatus(status);
        QVERIFY(m_sales->updateStatusMakanDitempat(order));
        QCOMPARE(m_sales->removeOrder(m_sales->findOrder(order->getId())), removed);
        QCOMPARE(m_sales->takeErrors(), removed ? QString() : QString("Order sudah dibayar tidak bisa dihapus\r\n"));
        QCOMPARE(m_database->value("SELECT count(*) FROM makan_ditempat_detail").toInt(), removed ? 0 : 1);
    }

    void aSearchOnlyFindsTheWholeCodeOrName_data()
    {
        addColumns<QString, int, QStringList>("text", "status", "guests");
        addRow("nothing asked", "", 0, QStringList{"Ann", "Bob"});
        addRow("code", "t1", 0, QStringList{"Ann"});
        addRow("name in small letters", "garden", 0, QStringList{"Bob"});
        addRow("part of a name", "gard", 0, QStringList());
        // The text narrows the last condition alone.
        addRow("code and a status", "t1", int(EntityOrder::DONE), QStringList{"Ann", "Bob"});
        addRow("done ones as well", "t3", int(EntityOrder::DONE), QStringList{"Ann", "Bob", "Gone"});
    }

    void aSearchOnlyFindsTheWholeCodeOrName()
    {
        QFETCH(QString, text);
        QFETCH(int, status);
        QFETCH(QStringList, guests);
        EntityItem* rice = m_make->item("RICE", "Rice", 10000);
        m_make->openOrder(m_make->table("T1", "Terrace"), {m_make->line(rice, 1)}, "Ann");
        m_make->openOrder(m_make->table("T2", "Garden"), {m_make->line(rice, 1)}, "Bob");
        QVERIFY(m_sales->makanDitempatSelesai(m_make->openOrder(m_make->table("T3"), {m_make->line(rice, 1)}, "Gone")));
        QStringList found;
        const QList<EntityMakanDitempat*> orders = m_sales->getMakanDitempatList(status, text);
        for (const EntityMakanDitempat* order : orders)
            found.append(order->getPemesan());
        QCOMPARE(found, guests);
    }

    void savingAndReadingTakeFewTrips()
    {
        constexpr int lineCount = 12;
        EntityOrder::Lines lines;
        for (int i = 0; i < lineCount; ++i)
            lines.append(m_make->line(m_make->item(QString("I%1").arg(i), QString("Item %1").arg(i), 1000), 1));
        // The first order of the day prepares the statements.
        EntityMakanDitempat* first = m_make->order(m_make->table("t0"), lines.mid(0, 1));
        QVERIFY(m_sales->insertNewOrder(first) && m_sales->updateOrder(first));
        EntityMakanDitempat* order = m_make->order(m_make->table("t1"), lines.mid(1));
        {
            // Begin with the lock of the table, who sits there, the order, its lines, commit.
            const TripCount saving;
            QVERIFY2(m_sales->insertNewOrder(order), qPrintable(m_sales->takeErrors()));
            QVERIFY2(saving.sent().size() <= 5, qPrintable(saving.sent().join('\n')));
        }
        {
            EntityMakanDitempat* changed = m_sales->findOrder(order->getId());
            const EntityOrder::Lines stored = changed->getDetails();
            changed->setDetails(stored.mid(1) << m_make->line(lines.first()->getItem(), 1));
            changed->setRemovedDetails({stored.first()});
            const TripCount saving;
            QVERIFY2(m_sales->updateOrder(changed), qPrintable(m_sales->takeErrors()));
            // Begin, the order, all that was done to its lines, commit.
            QVERIFY2(saving.sent().size() <= 4, qPrintable(saving.sent().join('\n')));
        }

        const StatementCount reading;
        const EntityMakanDitempat* found = m_sales->findOrder(order->getId());
        QVERIFY(found);
        QCOMPARE(found->getDetails().size(), lineCount - 1);
        QCOMPARE(found->getDetails().last()->getItem()->getJenis()->getKode(), QString("FOOD"));
        QVERIFY2(reading.count() <= 3, qPrintable(QString::number(reading.count())));
    }

private:
    QString stored(const QString& column, const EntityMakanDitempat* order) const
    {
        return m_database
            ->value("SELECT " + column + " FROM makan_ditempat WHERE id = " + QString::number(order->getId()))
            .toString();
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<Builders> m_make;
    BusinessPenjualan* m_sales = nullptr;
};

QTEST_MAIN(TestOrders)
#include "tst_orders.moc"
