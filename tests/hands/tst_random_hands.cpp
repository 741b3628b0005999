#include "app/context/AppContext.h"
#include "hands/RandomHands.h"
#include "hands/TradeChecks.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/MainWindow.h"
#include "support/TestDatabase.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

/** Hands that press anything: the program lives, and the books are right. scripts/random-hands does it for longer. */
class TestRandomHands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { HouseStyle::apply(*qApp); }
    void nothingBreaks_data();
    void nothingBreaks();
};

void TestRandomHands::nothingBreaks_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::newRow("a cashier") << 1U;
    QTest::newRow("a child") << 2U;
    QTest::newRow("a cat") << 3U;
}

void TestRandomHands::nothingBreaks()
{
    QFETCH(quint32, seed);
    const QTemporaryDir spool;
    qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(spool.path()));
    TestDatabase database;
    openShopForHands(database);
    const QStringList before = faultsOfTrade(database);
    QVERIFY2(before.isEmpty(), qPrintable(before.join('\n')));
    AppContext::instance()->setShowDashboard(false);
    MainWindow window;
    AppContext::instance()->setMainWindow(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    RandomHands hands(window, seed);
    hands.addEvent("language", [&window] {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&window, &change);
    });
    hands.addEvent("lost connection", [&database] { database.killConnections(); });
    hands.addEvent("all pages close", [&window] { window.closeAllTab(); });
    for (int round = 0; round < 5; ++round) {
        hands.play(200);
        const QStringList faults = faultsOfTrade(database);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
    window.closeAllTab();
    AppContext::instance()->setMainWindow(nullptr);
}

QTEST_MAIN(TestRandomHands)
#include "tst_random_hands.moc"
