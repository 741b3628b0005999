#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorQuery.h"
#include "kor/persistence/KorServerWitness.h"
#include "kor/widgets/KorWaitingSign.h"
#include "support/DatabaseTest.h"
#include "support/StallingProxy.h"

#include <QElapsedTimer>
#include <QSqlDriver>
#include <QVBoxLayout>

#include <libpq-fe.h>

#include <atomic>

namespace
{
/** Watches the windows while the test waits for the server, and measures how long nothing could be painted. */
class Onlooker : public QObject
{
public:
    explicit Onlooker(std::function<void()> look) : m_look(std::move(look))
    {
        m_clock.start();
        m_thread = std::thread([this] {
            while (!m_ended) {
                QCoreApplication::postEvent(this, new QEvent(QEvent::User));
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        });
    }
    ~Onlooker() override
    {
        m_ended = true;
        m_thread.join();
    }
    [[nodiscard]] qint64 longestStill() const { return m_longest; }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        m_longest = qMax(m_longest, m_clock.restart());
        m_look();
        return true;
    }

private:
    std::function<void()> m_look;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
    std::atomic<bool> m_ended{false};
    std::thread m_thread;
};

QWidget* panel()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == "waitingForServer" && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QString textsOf(const QWidget* parent)
{
    QStringList texts;
    for (const QLabel* label : parent->findChildren<QLabel*>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts.join('|');
}
} // namespace

/** A server, network or workstation that makes a till wait: what the window shows, and how it ends. */
class TestWaiting : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_people.reset();
        KorWaitingSign::watch();
        run("CREATE TABLE held (a integer)");
        run("INSERT INTO held VALUES (1)");
        m_window = std::make_unique<QWidget>();
        m_box = new QLineEdit;
        (new QVBoxLayout(m_window.get()))->addWidget(m_box);
        m_window->resize(800, 600);
        showForm(m_window.get());
    }
    void tidy() override
    {
        for (const QString& name : QSqlDatabase::connectionNames()) {
            if (name == "till 3")
                QSqlDatabase::removeDatabase(name);
        }
        m_window.reset();
        m_proxy.reset();
    }

private slots:
    void theWindowGoesOnAndNothingRunsIntoTheStatement()
    {
        m_box->setFocus();
        int ticks = 0;
        QTimer tick;
        connect(&tick, &QTimer::timeout, this, [&ticks] { ++ticks; });
        tick.start(10);
        QStringList shown;
        {
            Onlooker onlooker([&] {
                if (!panel())
                    return;
                shown.append(textsOf(panel()));
                QTest::keyClick(m_box, Qt::Key_A);
                QTest::keyClick(m_box, Qt::Key_Escape);
                QTest::mouseClick(m_box, Qt::LeftButton);
                m_window->grab();
            });
            KorQuery query;
            QVERIFY2(query.exec("SELECT pg_sleep(2.5)"), qPrintable(query.failure()));
            QVERIFY2(onlooker.longestStill() < 2000, qPrintable(QString::number(onlooker.longestStill())));
        }
        QVERIFY(shown.size() > 5);
        QCOMPARE(shown.last(), QString("Waiting for the server..."));
        QCOMPARE(ticks, 0);
        QTRY_VERIFY(!panel());
        QCOMPARE(m_box->text(), QString());
        QVERIFY(m_box->hasFocus());
        QTRY_VERIFY(ticks > 0);
        QTest::keyClick(m_box, Qt::Key_B);
        QCOMPARE(m_box->text(), QString("b"));
    }

    void manyShortStatementsAreALongOne()
    {
        int shown = 0;
        {
            Onlooker onlooker([&shown] { shown += panel() ? 1 : 0; });
            for (int i = 0; i < 8; ++i)
                QVERIFY(KorQuery().exec("SELECT pg_sleep(0.25)"));
            QVERIFY2(onlooker.longestStill() < 2000, qPrintable(QString::number(onlooker.longestStill())));
        }
        QVERIFY(shown > 5);
        QTRY_VERIFY(!panel());
        // A pause in between, and the next one is a short one again.
        QVERIFY(KorQuery().exec("SELECT pg_sleep(0.25)"));
        QVERIFY(!panel());
    }

    void aPersonStopsWaitingForASilentServer()
    {
        // The wait is counted from the first call of a stretch, which may be one of the opening.
        QElapsedTimer clock;
        clock.start();
        openThroughProxy();
        m_proxy->stall();
        qint64 offered = 0;
        Onlooker onlooker([&] {
            auto* stop = panel() ? panel()->findChild<QPushButton*>() : nullptr;
            if (!stop || !stop->isVisible() || offered > 0)
                return;
            offered = clock.elapsed();
            QCOMPARE(stop->text(), QString("Stop waiting"));
            QTest::mouseClick(stop, Qt::LeftButton);
        });
        KorQuery query;
        QVERIFY(!query.exec("UPDATE held SET a = 3"));
        QVERIFY2(offered >= 5000 && clock.elapsed() < 10000, qPrintable(QString::number(offered)));
        // The statement may have been executed, and only the answer is missing.
        QVERIFY2(query.failure().contains("not certain whether it was saved"), qPrintable(query.failure()));

        m_proxy->goOn();
        KorQuery again;
        QVERIFY2(again.exec("UPDATE held SET a = 3"), qPrintable(again.failure()));
    }

    void aTillThatStopsInTheMiddleLetsGo()
    {
        holdTheRow(true);
        QStringList shown;
        Onlooker onlooker([&] {
            if (panel())
                shown.append(textsOf(panel()));
        });
        KorQuery query;
        QVERIFY2(query.exec("UPDATE held SET a = a + 4"), qPrintable(query.failure()));
        QCOMPARE(m_database->value("SELECT a FROM held").toInt(), 5);
        QVERIFY2(shown.join('#').contains("Till 3, dewi, since "), qPrintable(shown.join('#')));
    }

    void whoWaitsInVainReadsWhoHoldsIt()
    {
        holdTheRow(false);
        KorQuery query;
        QVERIFY(!query.exec("UPDATE held SET a = 4"));
        const KorToldFailure told = KorToldFailure::in(query.failure());
        QVERIFY2(told.sentence.contains("Till 3, dewi, since "), qPrintable(told.text()));
        QSqlQuery(QSqlDatabase::database("till 3")).exec("ROLLBACK");
        QVERIFY(query.exec("UPDATE held SET a = 4"));
    }

    void aLineThatFailsAtTheCommitIsToldForWhatItIs_data()
    {
        const auto row = addColumns<StallingProxy::Moment, StallingProxy::Deed, int>("moment", "deed", "stored");
        row("cut before the server has it", StallingProxy::BeforeServer, StallingProxy::Cut, 1);
        row("cut before the answer is back", StallingProxy::BeforeAnswer, StallingProxy::Cut, 5);
        row("silent, until the program cuts it", StallingProxy::BeforeAnswer, StallingProxy::Stall, 5);
    }
    void aLineThatFailsAtTheCommitIsToldForWhatItIs()
    {
        QFETCH(StallingProxy::Moment, moment);
        QFETCH(StallingProxy::Deed, deed);
        QFETCH(int, stored);
        openThroughProxy();
        KorTransaction transaction;
        KorQuery query;
        QVERIFY(query.exec("UPDATE held SET a = 5"));
        m_proxy->atText("commit", moment, deed);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!transaction.commit());
        QVERIFY(clock.elapsed() < 25000);
        QVERIFY(transaction.isUnsure());
        QVERIFY2(transaction.failure().contains("not certain whether it was saved"), qPrintable(transaction.failure()));
        QTRY_COMPARE(m_database->value("SELECT a FROM held").toInt(), stored);
    }

    void aWitnessTellsWorkFromSilence()
    {
        openThroughProxy();
        std::atomic<bool> done{false};
        const auto* connection = *static_cast<PGconn* const*>(QSqlDatabase::database().driver()->handle().constData());
        std::thread statement([&, driver = QSqlDatabase::database()] {
            QSqlQuery(driver).exec("SELECT pg_sleep(3)");
            done = true;
        });
        {
            const KorServerWitness witness(connection);
            const auto begin = witness.lastSeenAtWork();
            QTRY_VERIFY_WITH_TIMEOUT(witness.lastSeenAtWork() > begin, 3000);
            m_proxy->stall();
            QTest::qWait(200);
            const auto last = witness.lastSeenAtWork();
            QTest::qWait(1500);
            QVERIFY(witness.lastSeenAtWork() == last);
        }
        m_proxy->goOn();
        statement.join();
    }

private:
    void openThroughProxy()
    {
        m_proxy = std::make_unique<StallingProxy>();
        QVERIFY(AppContext::instance()->databaseManager()->open(m_proxy->host(), m_database->name(),
                                                                TestDatabase::user(), QString(), m_proxy->port()));
    }

    /** Another workstation has an open transaction; with the program's own timeouts or without. */
    void holdTheRow(bool limited)
    {
        QSqlDatabase till = QSqlDatabase::cloneDatabase(QSqlDatabase::database(), "till 3");
        if (!limited)
            till.setConnectOptions();
        QVERIFY(till.open());
        QSqlQuery query(till);
        QVERIFY(query.exec("SET application_name TO 'Till 3, dewi'"));
        QVERIFY(query.exec("BEGIN"));
        QVERIFY(query.exec("UPDATE held SET a = 2"));
    }

    std::unique_ptr<StallingProxy> m_proxy;
    std::unique_ptr<QWidget> m_window;
    QLineEdit* m_box = nullptr;
};

QTEST_MAIN(TestWaiting)
#include "tst_waiting.moc"
