#include "hands/RandomHands.h"
#include "hands/TradeChecks.h"
#include "hands/Workplace.h"
#include "shell/window/HouseStyle.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

#include <QApplication>
#include <QTemporaryDir>

/** Random input: the program does not crash and the data stays consistent. scripts/random-hands runs it for longer. */
class TestRandomHands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { HouseStyle::apply(*qApp); }
    void nothingBreaks_data() { addRows<quint32>("seed", {{"a cashier", 1U}, {"a child", 2U}, {"a cat", 3U}}); }
    void nothingBreaks()
    {
        QFETCH(quint32, seed);
        const QTemporaryDir spool;
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(spool.path()));
        TestDatabase database;
        openShopForHands(database);
        const QStringList before = faultsOfTrade(database);
        QVERIFY2(before.isEmpty(), qPrintable(before.join('\n')));
        Workplace place;
        QVERIFY(place.isReady());

        RandomHands hands(place.window(), seed);
        hands.addEvent("language", [&place] { place.changeLanguage(); });
        hands.addEvent("lost connection", [&database] { database.killConnections(); });
        hands.addEvent("all pages close", [&place] { place.window().closeAllTab(); });
        for (int round = 0; round < 5; ++round) {
            hands.play(200);
            const QStringList faults = faultsOfTrade(database);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        }
        place.window().closeAllTab();
    }
};

QTEST_MAIN(TestRandomHands)
#include "tst_random_hands.moc"
