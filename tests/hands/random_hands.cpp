#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "hands/RandomHands.h"
#include "hands/TradeChecks.h"
#include "hands/Workplace.h"
#include "shell/window/HouseStyle.h"
#include "support/TestDatabase.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <vector>

namespace
{
constexpr int strokesARound = 200;

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

/** Runs one workstation: sends random input until the time is over and logs it. */
int work(const QString& databaseName, quint32 seed, int seconds, const QString& logName)
{
    auto* manager = new DatabaseManager;
    AppContext::instance()->setDatabaseManager(manager);
    ZavelBusinessRegistry::instance();
    if (!manager->open(TestDatabase::host(), databaseName, TestDatabase::user(), QString(), TestDatabase::port())) {
        out() << manager->lastErrorText() << Qt::endl;
        return 1;
    }
    loginAsAdmin();
    AppContext::instance()->setLocale("id_ID");
    HouseStyle::apply(*qApp);
    Workplace place;
    if (!place.isReady())
        return 1;
    QFile file(logName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 1;
    QTextStream log(&file);
    RandomHands hands(place.window(), seed);
    hands.setLog(&log);
    hands.addEvent("language", [&place] { place.changeLanguage(); });
    hands.addEvent("all pages close", [&place] { place.window().closeAllTab(); });
    QElapsedTimer time;
    time.start();
    int strokes = 0;
    for (; time.elapsed() < qint64(seconds) * 1000; strokes += strokesARound)
        hands.play(strokesARound);
    place.window().closeAllTab();
    out() << strokes << " strokes with seed " << seed << Qt::endl;
    return 0;
}

/** Runs this many workstations on a new shop and checks the database afterwards. */
int supervise(quint32 seed, int programs, int seconds, const QString& folder)
{
    TestDatabase database;
    openShopForHands(database);
    std::vector<std::unique_ptr<QProcess>> workers;
    for (int number = 0; number < programs; ++number) {
        auto worker = std::make_unique<QProcess>();
        worker->setProcessChannelMode(QProcess::ForwardedOutputChannel);
        const QString own = QString("%1/hands-%2").arg(folder).arg(seed + quint32(number));
        worker->setStandardErrorFile(own + ".messages");
        worker->start(
            QCoreApplication::applicationFilePath(),
            {"work", database.name(), QString::number(seed + quint32(number)), QString::number(seconds), own + ".log"});
        workers.push_back(std::move(worker));
    }
    bool wrong = false;
    for (const auto& worker : workers) {
        worker->waitForFinished(-1);
        if (worker->exitStatus() == QProcess::CrashExit || worker->exitCode() != 0) {
            out() << "ended with " << worker->exitCode() << ": " << worker->arguments().join(' ') << Qt::endl;
            wrong = true;
        }
    }
    const QStringList faults = faultsOfTrade(database);
    for (const QString& fault : faults)
        out() << fault << Qt::endl;
    for (const char* table : {"invoice", "makan_ditempat", "bawa_pulang", "acquisition", "purchase_order", "payment",
                              "piutang", "stock_take", "entities_history"})
        out() << table << ": " << database.value(QString("select count(*) from %1").arg(table)).toInt() << Qt::endl;
    return wrong || !faults.isEmpty();
}
} // namespace

/**
 * random_hands SEED PROGRAMS SECONDS FOLDER: sends random input to this many workstations of one shop at the same time.
 * FOLDER gets the logs of inputs and messages. Started by scripts/random-hands.
 */
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 6 && words[1] == "work")
        return work(words[2], words[3].toUInt(), words[4].toInt(), words[5]);
    if (words.size() == 5)
        return supervise(words[1].toUInt(), words[2].toInt(), words[3].toInt(), words[4]);
    out() << "random_hands SEED PROGRAMS SECONDS FOLDER" << Qt::endl;
    return 2;
}
