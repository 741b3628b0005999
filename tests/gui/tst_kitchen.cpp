#include "kor/persistence/KorConnectionProbe.h"
#include "support/DatabaseTest.h"
#include "support/Golden.h"
#include "support/StallingProxy.h"
#include "zavel/dinein/TableModelMakanDitempatDetail.h"
#include "zavel/kitchen/TabPesananMasuk.h"
#include "zavel/kitchen/TableModelQueue.h"
#include "zavel/kitchen/TableModelQueueMenu.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QScrollBar>

#include <unistd.h>

namespace
{
using Queue = TableModelQueue;
using Menu = TableModelQueueMenu;

/** What the program holds in memory, in KiB. */
int residentMemory()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return static_cast<int>(file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024);
}
} // namespace

/** The kitchen page, which must update without any user input. */
class TestKitchen : public PageTest<TabPesananMasuk>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        // The page asks for no right, not even the one that is named after what it does.
        loginWithRights("Sales", {});
        m_make = std::make_unique<Builders>();
        m_sales = service<BusinessPenjualan>("Sales");
        m_rice = m_make->item("RICE", "Fried rice", 25000);
        m_tea = m_make->item("TEA", "Iced tea", 5000);
    }

private slots:
    void theQueueTellsWhoWaitsAndForHowLong()
    {
        EntityBawaPulang* takeAway = m_make->takeAway({{m_tea, 2}}, "Bob");
        EntityMakanDitempat* moved =
            m_make->openOrder(m_make->table("A"), {m_make->line(m_rice, 2, "no chili")}, "Ann");
        m_make->openOrder(m_make->table("Z"), {m_make->line(m_tea, 1)});
        run("UPDATE makan_ditempat SET createdtime = createdtime - interval '44 minutes 30 seconds'");
        for (const char* table : {"B", "C"}) {
            EntityMakanDitempat* found = m_sales->findOrder(moved->getId());
            found->moveTo(m_make->table(table));
            QVERIFY(m_sales->updateOrder(found));
        }
        run("UPDATE makan_ditempat SET updatedtime = updatedtime - interval '100 seconds'");
        run("UPDATE bawa_pulang SET createdtime = createdtime - interval '1 day'");

        show();
        const auto* timer = m_page->findChild<QTimer*>();
        QVERIFY(timer->isActive() && !timer->isSingleShot());
        QCOMPARE(timer->interval(), 10000);
        QCOMPARE(timer->timerType(), Qt::CoarseTimer);
        const QString takeAwayCode = "Take Away:" + QString::number(takeAway->getId());
        QCOMPARE(columnOf(orders(), Queue::Code), (QStringList{"A>B>C", "Z", takeAwayCode}));
        QCOMPARE(columnOf(orders(), Queue::ElapsedTime), (QStringList{"1 minute", "44 minutes", "yesterday"}));

        QVERIFY(selected(orders()).isEmpty());
        QCOMPARE(label("lblCount"), QString("0 Items"));
        selectOrder("A>B>C");
        QCOMPARE(label("lblCount"), QString("1 Items"));
        QCOMPARE(headersOf(*lines()->model()),
                 (QStringList{"Code", "Name", "Qty", "Unit", "Status", "Description", "Created", "Updated"}));
        const QString today = QDate::currentDate().toString("d MMM yyyy");
        QCOMPARE(cells(*lines()->model(), 0),
                 (QStringList{"RICE", "Fried rice", "2", "Packs", "", "no chili", today, today}));
        selectOrder(takeAwayCode);
        QCOMPARE(columnOf(lines(), Menu::Name), QStringList{"Iced tea"});
    }

    void anOrderStaysUntilItIsDone()
    {
        EntityMakanDitempat* paid = m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)});
        EntityMakanDitempat* done = m_make->openOrder(m_make->table("t2"), {m_make->line(m_rice, 1)});
        EntityBawaPulang* gone = m_make->takeAway({{m_tea, 1}});
        m_make->invoice(paid, 25000);
        run("UPDATE makan_ditempat SET createdtime = createdtime - interval '2 hours', "
            "updatedtime = updatedtime - interval '2 hours'");
        show();
        QCOMPARE(orders()->model()->rowCount(), 3);
        QVERIFY(m_sales->makanDitempatSelesai(done));
        QVERIFY(m_sales->bawaPulangSelesai(gone));
        tick();
        QCOMPARE(columnOf(orders(), Queue::Code), QStringList{"t1"});
        QCOMPARE(columnOf(orders(), Queue::ElapsedTime), QStringList{"2 hours"});
        QCOMPARE(m_database->value("SELECT status FROM makan_ditempat WHERE meja_id = 1").toInt(),
                 int(EntityOrder::PAID));
        // Saving the order restarts its clock.
        QVERIFY(m_sales->updateOrder(m_sales->findOrder(paid->getId())));
        tick();
        QVERIFY(columnOf(orders(), Queue::ElapsedTime).first().endsWith(" second"));
    }

    void theFilterLeavesOrdersToTakeAwayInTheList()
    {
        m_make->openOrder(m_make->table("T1", "Terrace"), {m_make->line(m_rice, 1)});
        m_make->openOrder(m_make->table("T2", "Garden"), {m_make->line(m_rice, 1)});
        const QString takeAway = "Take Away:" + QString::number(m_make->takeAway({{m_tea, 1}})->getId());
        show();
        for (const char* text : {"GARDEN", "T2"}) {
            typeInto(m_page.get(), "txtFilter", text);
            confirm(m_page.get(), "txtFilter");
            QCOMPARE(columnOf(orders(), Queue::Code), (QStringList{"T2", takeAway}));
        }
        box(m_page.get(), "txtFilter")->clear();
        QCOMPARE(columnOf(orders(), Queue::Code), (QStringList{"T1", "T2", takeAway}));
    }

    void aTickChangesNothingUnderTheCooksHand()
    {
        EntityOrder::Lines menu;
        for (int i = 0; i < 20; ++i)
            menu.append(m_make->line(m_make->item(QString("M%1").arg(i, 2, 10, QChar('0')), "Dish", 1000), 1));
        EntityMakanDitempat* first = m_make->openOrder(m_make->table("t10"), {m_make->line(m_rice, 1)});
        for (int i = 11; i < 40; ++i)
            m_make->openOrder(m_make->table(QString("t%1").arg(i)),
                              i == 30 ? menu : EntityOrder::Lines{m_make->line(m_rice, 1)});
        m_make->takeAway({{m_tea, 1}});
        show();
        selectOrder("t30");
        lines()->selectRow(15);
        lines()->selectionModel()->select(lines()->model()->index(16, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
        orders()->verticalScrollBar()->setValue(14);
        lines()->verticalScrollBar()->setValue(9);
        lines()->horizontalScrollBar()->setValue(40);
        const auto view = [this] {
            return QList<int>{orders()->verticalScrollBar()->value(), lines()->verticalScrollBar()->value(),
                              lines()->horizontalScrollBar()->value(), orders()->columnWidth(0)};
        };
        const QList<int> before = view();
        QCOMPARE(before.mid(0, 3), (QList<int>{14, 9, 40}));

        QVERIFY(m_sales->makanDitempatSelesai(first));
        const StatementCount statements;
        tick();
        QCOMPARE(statements.count(), 4);
        QCOMPARE(orders()->model()->rowCount(), 30);
        QCOMPARE(view(), before);
        QCOMPARE(selected(orders()), QStringList{"t30"});
        QCOMPARE(selected(lines()), (QStringList{"M15", "M16"}));
        QApplication::processEvents();
        QCOMPARE(view(), before);

        // "Refresh" clears the selection; the next tick restores it.
        click("btnRefresh");
        QVERIFY(selected(orders()).isEmpty());
        QCOMPARE(lines()->model()->rowCount(), 0);
        tick();
        QCOMPARE(selected(orders()), QStringList{"t30"});
        QCOMPARE(lines()->model()->rowCount(), 20);
    }

    void theNextOrderMovesUpWhenTheOneInHandHasGone()
    {
        EntityMakanDitempat* first = m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)});
        m_make->openOrder(m_make->table("t2"), {m_make->line(m_tea, 1)});
        show();
        selectOrder("t1");
        lines()->selectRow(0);
        QVERIFY(m_sales->makanDitempatSelesai(first));
        tick();
        QCOMPARE(selected(orders()), QStringList{"t2"});
        QCOMPARE(columnOf(lines(), Menu::Name), QStringList{"Iced tea"});
        QVERIFY(selected(lines()).isEmpty());
    }

    void theWaiterSeesWhatTheKitchenReports()
    {
        EntityMakanDitempat* dine =
            m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1), m_make->line(m_tea, 1)});
        EntityBawaPulang* takeAway = m_make->takeAway({{m_tea, 1}});
        show();
        auto* note = m_page->findChild<QComboBox*>("ddlNote");
        QCOMPARE(note->itemText(0) + '/' + note->itemText(1) + '/' + note->itemText(2),
                 QString("Out of Stock/Processed/Not Enough Stock"));
        // Without a selected line nothing is written, but the page reads again.
        m_make->openOrder(m_make->table("t2"), {m_make->line(m_tea, 1)});
        selectOrder("t1");
        click("btnSendStatus");
        QCOMPARE(columnOf(orders(), Queue::Code).mid(0, 2), (QStringList{"t1", "t2"}));
        QCOMPARE(columnOf(lines(), Menu::Status), (QStringList{"", ""}));

        lines()->selectRow(1);
        click("btnSendStatus");
        QCOMPARE(columnOf(lines(), Menu::Status), (QStringList{"", "Out of Stock"}));
        QCOMPARE(selected(lines()), QStringList{"TEA"});
        selectOrder("Take Away:" + QString::number(takeAway->getId()));
        lines()->selectAll();
        note->setCurrentIndex(1);
        click("btnSendStatus");
        QCOMPARE(columnOf(lines(), Menu::Status), QStringList{"Processed"});

        QList<KorEntity*> stored;
        for (EntityOrderDetail* line : m_sales->findOrder(dine->getId())->getDetails())
            stored.append(line);
        const TableModelMakanDitempatDetail board(stored, nullptr);
        QCOMPARE(board.index(0, OrderLinesModel::Status).data().toString(), QString());
        QCOMPARE(board.index(1, OrderLinesModel::Status).data().toString(), QString("Out of Stock"));
        // The order itself has not changed: its guests have waited since before.
        QVERIFY(m_database->value("SELECT updatedtime FROM makan_ditempat WHERE meja_id = 1").isNull());
        QVERIFY(m_people->boxes().isEmpty());
    }

    void aLineThatAWaiterTookOffIsTold()
    {
        EntityMakanDitempat* dine =
            m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1), m_make->line(m_tea, 1)});
        show();
        selectOrder("t1");
        lines()->selectAll();
        const int gone = dine->getDetails().first()->getId();
        run("DELETE FROM makan_ditempat_detail WHERE id = " + QString::number(gone));
        click("btnSendStatus");
        QTRY_COMPARE(m_people->texts(), QStringList{QString("Can not find entity with id: %1\r\n").arg(gone)});
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(columnOf(lines(), Menu::Status), QStringList{"Out of Stock"});
    }

    void anAdditionHoldsNewAndChangedLinesOnly()
    {
        EntityMeja* table = m_make->table("T3");
        EntityMakanDitempat* order = m_make->openOrder(table,
                                                       {m_make->line(m_rice, 1), m_make->line(m_tea, 2, "no ice"),
                                                        m_make->line(m_make->item("SOUP", "Oxtail soup", 40000), 3)},
                                                       "Ann");
        order->setMember(m_make->member("M-017", "Budi Santoso"));
        order->moveTo(m_make->table("T5"));
        QVERIFY(m_sales->updateOrder(order));
        // One is being cooked, one was changed, one is new.
        run(QString("UPDATE makan_ditempat_detail SET status = CASE item_id WHEN %1 THEN 3 WHEN %2 THEN 4 ELSE "
                    "1 END")
                .arg(m_rice->getId())
                .arg(m_tea->getId()));
        run("UPDATE makan_ditempat SET createdtime = createdtime - interval '3 hours', "
            "updatedtime = updatedtime - interval '10 minutes'");
        show();
        QVERIFY(!m_page->findChild<QPushButton*>("btnPrint")->isEnabled());
        selectOrder("T3>T5");
        click("btnPrintAddition");
        click("btnPrint");
        click("btnPrintAddition");
        QCOMPARE(slips().size(), 3);
        QString addition = slips().first();
        QCOMPARE(slips().last(), addition);
        addition.replace(QRegularExpression("Date   : [0-9: -]+\n"), "Date   : the evening\n");
        QCOMPARE(goldenDifference("kitchen_addition.txt", addition.toUtf8()), QString());
        QVERIFY(slips().at(1).contains("Fried rice") && slips().at(1).contains("Oxtail soup"));
        QCOMPARE(columnOf(lines(), Menu::Code), (QStringList{"RICE", "TEA", "SOUP"}));
        QVERIFY(m_people->boxes().isEmpty());
    }

    void noTickComesInWhileASlipIsBeingPrinted()
    {
        m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)});
        show();
        selectOrder("t1");
        listPrinters("Somewhere else\n");
        m_make->openOrder(m_make->table("t2"), {m_make->line(m_rice, 1)});

        m_people.reset();
        QString text;
        int sent = -1;
        QTimer whileTheBoxIsUp;
        connect(&whileTheBoxIsUp, &QTimer::timeout, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            const bool isFirst = text.isEmpty();
            text += box->text();
            box->close();
            if (!isFirst)
                return;
            const StatementCount statements;
            tick();
            click("btnRefresh");
            click("btnPrint");
            click("btnSendStatus");
            sent = statements.count();
        });
        whileTheBoxIsUp.start(0);
        click("btnPrint");
        whileTheBoxIsUp.stop();
        QCOMPARE(sent, 0);
        QCOMPARE(text.count("Error Opening Printer:"), 1);
        tick();
        QCOMPARE(orders()->model()->rowCount(), 2);
    }

    void aNightOfTicksNeedsNoMoreMemory()
    {
        for (int i = 0; i < 50; ++i)
            m_make->openOrder(m_make->table(QString("x%1").arg(i)), {m_make->line(m_tea, 1)});
        for (int i = 0; i < 10; ++i)
            m_make->takeAway({{m_tea, 1}});
        show();
        orders()->selectRow(30);
        const auto run = [this](int ticks) {
            for (int i = 0; i < ticks; ++i) {
                tick();
                if (i % 50 == 0)
                    QApplication::processEvents();
            }
            return residentMemory();
        };
        const int before = run(500);
        const int records = AppContext::instance()->liveEntities().size();
        const int after = run(5000);
        QCOMPARE(AppContext::instance()->liveEntities().size(), records);
        QVERIFY2(before > 0 && after - before <= 256,
                 qPrintable(QString("%1 KiB, then %2 KiB").arg(before).arg(after)));
        QCOMPARE(orders()->model()->rowCount(), 60);
    }

    void aLostServerIsToldOnceAndThePageRecoversByItself()
    {
        m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)}, "Ann");
        show();
        selectOrder("t1");
        // Nobody answers message boxes.
        m_people.reset();
        const auto boxes = [this] { return m_page->findChildren<QMessageBox*>(); };
        auto* line = m_page->findChild<QLabel*>("lblNotUpToDate");
        QVERIFY(line->isHidden());
        TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS false");
        m_database->killConnections();
        QSignalSpy refused(m_page->findChild<KorConnectionProbe*>(), &KorConnectionProbe::answered);
        for (int i = 0; i < 3; ++i) {
            tick();
            // The first action detects the loss; the others check whether the server is back.
            QTRY_COMPARE(refused.size(), i);
            QCOMPARE(boxes().size(), 1);
            QVERIFY(boxes().first()->text().startsWith("The connection to the database is lost."));
            QVERIFY(line->isVisible());
            QCOMPARE(selected(orders()), QStringList{"t1"});
            QCOMPARE(columnOf(lines(), Menu::Code), QStringList{"RICE"});
        }
        boxes().first()->close();
        QTRY_VERIFY(boxes().isEmpty());
        click("btnRefresh");
        QTRY_COMPARE(refused.size(), 3);
        tick();
        QTRY_COMPARE(refused.size(), 4);
        QVERIFY(boxes().isEmpty() && line->isVisible());

        TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS true");
        run("UPDATE makan_ditempat_detail SET kitchen_status = 'Processed'");
        tick();
        QTRY_COMPARE(columnOf(lines(), Menu::Status), QStringList{"Processed"});
        QVERIFY(line->isHidden());
        // The next loss is reported again, and its message box closes by itself.
        m_database->killConnections();
        tick();
        QCOMPARE(boxes().size(), 1);
        tick();
        QTRY_VERIFY(boxes().isEmpty());
        QVERIFY(line->isHidden());
    }

    void aSilentServerHoldsUpNoTick()
    {
        m_make->openOrder(m_make->table("t1"), {m_make->line(m_rice, 1)});
        show();
        StallingProxy silent;
        silent.takeInSilence();
        QSqlDatabase connection = AppContext::instance()->databaseManager()->database();
        connection.setHostName(StallingProxy::host());
        connection.setPort(silent.port());
        connection.setConnectOptions("connect_timeout=2");
        m_database->killConnections();
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 5; ++i) {
            tick();
            QApplication::processEvents();
        }
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(columnOf(orders(), Queue::Code), QStringList{"t1"});
        QVERIFY(m_page->findChild<QLabel*>("lblNotUpToDate")->isVisible());
    }

private:
    void tick() { m_page->autoRefresh(); }
    [[nodiscard]] QTableView* orders() const { return m_page->findChild<QTableView*>("tblQueue"); }
    [[nodiscard]] QTableView* lines() const { return m_page->findChild<QTableView*>("tblMenu"); }
    [[nodiscard]] static QStringList selected(const QTableView* grid)
    {
        QStringList texts;
        for (const QModelIndex& index : grid->selectionModel()->selectedRows())
            texts.append(index.data().toString());
        return texts;
    }

    void click(const char* button) { m_page->findChild<QPushButton*>(button)->click(); }
    void selectOrder(const QString& code) { orders()->selectRow(columnOf(orders(), Queue::Code).indexOf(code)); }

    BusinessPenjualan* m_sales = nullptr;
    EntityItem* m_rice = nullptr;
    EntityItem* m_tea = nullptr;
};

QTEST_MAIN(TestKitchen)
#include "tst_kitchen.moc"
