#include "support/Rows.h"
#include "support/StallingProxy.h"
#include "support/TestDatabase.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

#include <atomic>

using namespace std::chrono_literals;

namespace
{
const char* const through = "through-the-proxy";
}

/** The bad network of the other tests does what it says. */
class TestStallingProxy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        m_database->run("CREATE TABLE bill (no integer)");
        m_proxy = std::make_unique<StallingProxy>();
        QVERIFY2(connectThrough(), qPrintable(connection().lastError().text()));
    }
    void cleanup()
    {
        connection().close();
        QSqlDatabase::removeDatabase(through);
        m_proxy.reset();
        m_database.reset();
    }

    void aStallHoldsBackUntilItGoesOn_data()
    {
        addColumns<StallingProxy::Direction, int>("direction", "billsMeanwhile");
        addRow("to the server", StallingProxy::ToServer, 0);
        addRow("to the client", StallingProxy::ToClient, 1);
        addRow("both", StallingProxy::Both, 0);
    }
    void aStallHoldsBackUntilItGoesOn()
    {
        QFETCH(StallingProxy::Direction, direction);
        QFETCH(int, billsMeanwhile);
        m_proxy->stall(direction);
        std::atomic_int seen{-1};
        // This thread hangs in the driver meanwhile.
        std::thread helper([&] {
            for (int i = 0; i < 500 && m_proxy->held() == 0; ++i)
                std::this_thread::sleep_for(10ms);
            seen = countFromAside();
            m_proxy->goOn();
        });
        const bool written = QSqlQuery(connection()).exec("INSERT INTO bill VALUES (1)");
        helper.join();
        QVERIFY(written);
        QCOMPARE(seen.load(), billsMeanwhile);
        QCOMPARE(bills(), 1);
    }

    void aDelayPutsOffAndDoesNotThrottle()
    {
        m_proxy->delay(StallingProxy::ToServer, 100ms);
        m_proxy->delay(StallingProxy::ToClient, 200ms);
        QElapsedTimer timer;
        timer.start();
        // Six megabytes there would take the hundredfold if each piece waited for the one before.
        QSqlQuery query(connection());
        QVERIFY(query.exec("SELECT '" + QString(6000000, 'x') + '\''));
        QVERIFY2(timer.elapsed() >= 300 && timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
        m_proxy->delay(StallingProxy::Both, 0ms);
        timer.restart();
        QVERIFY(query.exec("SELECT 1"));
        QVERIFY(timer.elapsed() < 100);
    }

    void theTextOfTheClientIsActedOn_data()
    {
        addColumns<StallingProxy::Moment, StallingProxy::Deed, int>("moment", "deed", "billsAfterwards");
        addRow("cut before it", StallingProxy::BeforeServer, StallingProxy::Cut, 0);
        addRow("cut before the answer", StallingProxy::BeforeAnswer, StallingProxy::Cut, 1);
        addRow("stall before it", StallingProxy::BeforeServer, StallingProxy::Stall, 0);
        addRow("stall before the answer", StallingProxy::BeforeAnswer, StallingProxy::Stall, 1);
    }
    void theTextOfTheClientIsActedOn()
    {
        QFETCH(StallingProxy::Moment, moment);
        QFETCH(StallingProxy::Deed, deed);
        QFETCH(int, billsAfterwards);
        m_proxy->atText("COMMIT", moment, deed, 2);
        insertAndCommit();
        QCOMPARE(bills(), 1);
        std::atomic_bool done{false};
        std::thread helper([&] {
            done = m_proxy->waitUntilDone();
            // Ends the wait of the other thread where nothing else does.
            m_proxy->cutAll();
        });
        const bool committed = insertAndCommit();
        helper.join();
        QVERIFY(done);
        QVERIFY(!committed);
        QTRY_COMPARE(m_database->value("SELECT count(*) FROM pg_stat_activity WHERE datname = current_database()"), 2);
        QCOMPARE(bills(), 1 + billsAfterwards);
        QVERIFY2(connectThrough() && insertAndCommit(), "once only");
    }

    void cutConnectionsComeBackWhereTheDoorIsOpen()
    {
        QCOMPARE(m_proxy->connections(), 1);
        m_proxy->cutAll();
        QVERIFY(!QSqlQuery(connection()).exec("SELECT 1"));
        m_proxy->setDoor(StallingProxy::Refusing);
        QVERIFY(!connectThrough());
        m_proxy->setDoor(StallingProxy::Silent);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!connectThrough());
        QVERIFY2(timer.elapsed() >= 1500, "the client's own limit ends it, two seconds");
        m_proxy->setDoor(StallingProxy::Open);
        QVERIFY(connectThrough());
    }

private:
    [[nodiscard]] static QSqlDatabase connection() { return QSqlDatabase::database(through, false); }
    bool connectThrough()
    {
        if (!QSqlDatabase::contains(through))
            QSqlDatabase::addDatabase("QPSQL", through);
        QSqlDatabase database = connection();
        database.setHostName(StallingProxy::host());
        database.setPort(m_proxy->port());
        database.setUserName(TestDatabase::user());
        database.setDatabaseName(m_database->name());
        database.setConnectOptions("connect_timeout=2");
        return database.open();
    }
    static bool insertAndCommit()
    {
        QSqlDatabase database = connection();
        return database.transaction() && QSqlQuery(database).exec("INSERT INTO bill VALUES (1)") && database.commit();
    }
    [[nodiscard]] int bills() { return m_database->value("SELECT count(*) FROM bill").toInt(); }
    /** From a thread of its own, which may not use the connections of the test's. */
    [[nodiscard]] int countFromAside()
    {
        int count = -1;
        {
            QSqlDatabase aside = QSqlDatabase::addDatabase("QPSQL", "aside");
            aside.setHostName(TestDatabase::host());
            aside.setPort(TestDatabase::port());
            aside.setUserName(TestDatabase::user());
            aside.setDatabaseName(m_database->name());
            if (aside.open()) {
                QSqlQuery query("SELECT count(*) FROM bill", aside);
                count = query.next() ? query.value(0).toInt() : -1;
            }
        }
        QSqlDatabase::removeDatabase("aside");
        return count;
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<StallingProxy> m_proxy;
};

QTEST_MAIN(TestStallingProxy)
#include "tst_stalling_proxy.moc"
