#include "support/DatabaseTest.h"
#include "support/SlowNeighbour.h"
#include "support/TripCount.h"
#include "zavel/service/BusinessPenjualan.h"

/** Dine-in orders: occupied tables, slips to the kitchen, and two waiters with one order. */
class TestOrders : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_make = std::make_unique<Builders>();
        m_rice = m_make->item("RICE", "Rice", 10000);
        m_sales = service<BusinessPenjualan>("Sales");
    }

private slots:
    void aTableCarriesOneOrderAsFarAsItsCodeIsInSmallLetters_data()
    {
        const auto row = addColumns<QString, QString, bool>("code", "name", "refused");
        row("small letters", "t1", "Terrace", true);
        row("a capital", "T1", "Terrace", false);
        row("a capital, and a name of the same letters", "Bar", "bar", false);
        row("an apostrophe", "o'b", "O'Brien's", true);
    }
    void aTableCarriesOneOrderAsFarAsItsCodeIsInSmallLetters()
    {
        FETCH(QString, code, name);
        QFETCH(bool, refused);
        EntityMeja* table = m_make->table(code, name);
        EntityMakanDitempat* first = m_make->order(table, {m_make->line(m_rice, 1)});
        QVERIFY2(m_sales->insertNewOrder(first), qPrintable(m_sales->takeErrors()));

        EntityMakanDitempat* second = m_make->order(table, {m_make->line(m_rice, 2)});
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
        // The other transaction holds the lock and commits a moment later.
        const QString id = QString::number(table->getId());
        const SlowNeighbour other(*m_database, {"SELECT 1 FROM meja WHERE id = " + id + " FOR UPDATE",
                                                "INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, version) "
                                                "VALUES (1, " +
                                                    id + ", 'Bob', current_date, 1)"});
        EntityMakanDitempat* order = m_make->order(table, {m_make->line(m_rice, 1)});
        QVERIFY(!m_sales->insertNewOrder(order));
        QCOMPARE(m_sales->takeErrors(), QString("Meja sudah terisi\r\n"));
        QCOMPARE(value("SELECT string_agg(pemesan, ',') FROM makan_ditempat"), QString("Bob"));
    }

    void anOrderMovesOntoATakenTable()
    {
        EntityMeja* taken = m_make->table("t1");
        m_make->openOrder(taken, {m_make->line(m_rice, 1)});
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("t2"), {m_make->line(m_rice, 1)});
        order->moveTo(taken);
        QVERIFY2(m_sales->updateOrder(order), qPrintable(m_sales->takeErrors()));
        QCOMPARE(m_sales->getMakanDitempatList(0, "t1").size(), 2);
    }

    void aMovedOrderRemembersTheTablesItLeft()
    {
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("A"), {m_make->line(m_rice, 1)});
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
        const auto row = addColumns<int, QString, bool, int>("qty", "description", "otherItem", "status");
        row("nothing", 2, "hot", false, 0);
        row("quantity", 3, "hot", false, EntityOrderDetail::UPDATED);
        row("notes", 2, "mild", false, EntityOrderDetail::UPDATED);
        row("both", 1, "", false, EntityOrderDetail::UPDATED);
        row("another item", 2, "hot", true, EntityOrderDetail::NEW);
    }
    void theKitchenIsToldWhatIsOtherThanBefore()
    {
        FETCH(int, qty, status);
        QFETCH(QString, description);
        QFETCH(bool, otherItem);
        EntityItem* tea = m_make->item("TEA", "Tea", 5000);
        EntityMakanDitempatDetail* line = m_make->line(m_rice, 2, "hot");
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

    void aLineThatFailsTakesTheWholeOrderBack()
    {
        EntityItem* gone = m_make->item("GONE", "Off the menu", 10000);
        run("DELETE FROM item WHERE kode = 'GONE'");
        EntityMakanDitempat* order = m_make->order(
            m_make->table("t1"), {m_make->line(m_rice, 1), m_make->line(gone, 1), m_make->line(m_rice, 2)});
        QVERIFY(!m_sales->insertNewOrder(order));
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error: insert dine detail failed.\r\n"), qPrintable(told));
        QVERIFY2(told.contains("violates foreign key constraint \"makan_ditempat_detail_item_id_fkey\""),
                 qPrintable(told));
        QVERIFY(!order->isSaved());
        for (const EntityOrderDetail* line : order->getDetails())
            QVERIFY(!line->isSaved());
        QCOMPARE(count("makan_ditempat"), 0);
        // The form is still open: without the bad line it can be saved.
        order->setDetails(order->getDetails().mid(0, 1));
        QVERIFY2(m_sales->insertNewOrder(order), qPrintable(m_sales->takeErrors()));
    }

    void aPaidOrderIsNotRemoved_data()
    {
        const auto row = addColumns<int, bool>("status", "removed");
        row("waiting", EntityOrder::WAITING_FOR_MENU, true);
        row("unpaid", EntityOrder::UNPAID, true);
        row("paid", EntityOrder::PAID, false);
        row("partly paid", EntityOrder::PARTIALY_PAID, false);
    }
    void aPaidOrderIsNotRemoved()
    {
        QFETCH(int, status);
        QFETCH(bool, removed);
        EntityMakanDitempat* order = m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)});
        order->setStatus(status);
        QVERIFY(m_sales->updateStatusMakanDitempat(order));
        QCOMPARE(m_sales->removeOrder(m_sales->findOrder(order->getId())), removed);
        QCOMPARE(m_sales->takeErrors(), removed ? QString() : QString("Order sudah dibayar tidak bisa dihapus\r\n"));
        QCOMPARE(count("makan_ditempat_detail"), removed ? 0 : 1);
    }

    void aSearchOnlyFindsTheWholeCodeOrName_data()
    {
        const auto row = addColumns<QString, int, QStringList>("text", "status", "guests");
        row("nothing asked", "", 0, {"Ann", "Bob"});
        row("code", "t1", 0, {"Ann"});
        row("name in small letters", "garden", 0, {"Bob"});
        row("part of a name", "gard", 0, {});
        // The text narrows the last condition alone.
        row("code and a status", "t1", EntityOrder::DONE, {"Ann", "Bob"});
        row("done ones as well", "t3", EntityOrder::DONE, {"Ann", "Bob", "Gone"});
    }
    void aSearchOnlyFindsTheWholeCodeOrName()
    {
        QFETCH(QString, text);
        QFETCH(int, status);
        QFETCH(QStringList, guests);
        m_make->openOrder(m_make->table("T1", "Terrace"), {m_make->line(m_rice, 1)}, "Ann");
        m_make->openOrder(m_make->table("T2", "Garden"), {m_make->line(m_rice, 1)}, "Bob");
        QVERIFY(
            m_sales->makanDitempatSelesai(m_make->openOrder(m_make->table("T3"), {m_make->line(m_rice, 1)}, "Gone")));
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
            // The round trips: begin with the lock of the table; its orders; the order; its lines; commit.
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
            // The round trips: begin; the order; all changes of its lines; commit.
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
        return value("SELECT " + column + " FROM makan_ditempat WHERE id = " + QString::number(order->getId()));
    }

    BusinessPenjualan* m_sales = nullptr;
    EntityItem* m_rice = nullptr;
};

QTEST_MAIN(TestOrders)
#include "tst_orders.moc"
