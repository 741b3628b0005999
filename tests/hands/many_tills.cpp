#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "hands/Till.h"
#include "hands/TillBooks.h"
#include "hands/TillServer.h"
#include "support/TestDatabase.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTextStream>
#include <QThread>

#include <memory>
#include <vector>

namespace
{
QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

struct Plan
{
    int tills;
    int bills;
    int pace;
    int kills;
    int minutes;
    quint32 seed;
    QString folder;

    [[nodiscard]] QString journal(int number) const
    {
        return QString("%1/till-%2.journal").arg(folder).arg(number, 3, 10, QChar('0'));
    }
};

/** many_tills till NUMBER PORT JOURNAL BILLS PACE: runs one till. */
int beTill(const QStringList& words)
{
    auto* manager = new DatabaseManager;
    AppContext::instance()->setDatabaseManager(manager);
    ZavelBusinessRegistry::instance();
    loginAsAdmin();
    // The server may be starting again.
    for (int i = 0; !TillServer::open(manager, words[3].toInt()); ++i) {
        if (i == 300)
            return 1;
        QThread::msleep(100);
    }
    Till till(words[2].toInt(), words[4]);
    return till.work(words[5].toInt(), words[6].toInt()) ? 0 : 1;
}

/** The processes of the tills; a killed one is started again and continues its journal. */
class Crowd
{
public:
    Crowd(const Plan& plan, int port) : m_plan(plan), m_port(port), m_random(plan.seed)
    {
        for (int number = 1; number <= plan.tills; ++number) {
            m_tills.push_back(std::make_unique<QProcess>());
            // The program's messages are long if many saves are refused.
            m_tills.back()->setStandardErrorFile(plan.journal(number) + ".messages", QIODevice::Append);
            start(number);
        }
    }
    ~Crowd()
    {
        for (const auto& till : m_tills) {
            till->kill();
            till->waitForFinished();
        }
    }
    Q_DISABLE_COPY(Crowd)

    [[nodiscard]] bool isAtWork()
    {
        bool any = false;
        for (std::size_t i = 0; i < m_tills.size(); ++i) {
            QProcess& till = *m_tills[i];
            if (!till.waitForFinished(0) && till.state() != QProcess::NotRunning)
                any = true;
            else if (till.exitStatus() != QProcess::NormalExit || till.exitCode() != 0)
                any = start(static_cast<int>(i) + 1) || any;
        }
        return any;
    }
    void killOne()
    {
        const int victim = m_random.bounded(m_plan.tills);
        m_tills[static_cast<std::size_t>(victim)]->kill();
    }

private:
    bool start(int number)
    {
        m_tills[static_cast<std::size_t>(number) - 1]->start(QCoreApplication::applicationFilePath(),
                                                             {"till", QString::number(number), QString::number(m_port),
                                                              m_plan.journal(number), QString::number(m_plan.bills),
                                                              QString::number(m_plan.pace)});
        return true;
    }

    const Plan& m_plan;
    int m_port;
    QRandomGenerator m_random;
    std::vector<std::unique_ptr<QProcess>> m_tills;
};

/** Of six kills, three hit a till, two a session on the server, and one the server. */
void killSomething(int turn, Crowd& crowd, TillServer& server)
{
    if (turn % 6 == 5)
        server.killAndStart();
    else if (turn % 2 == 0)
        crowd.killOne();
    else
        server.endASession();
}

int supervise(const Plan& plan)
{
    TillServer server(plan.folder);
    if (!server.start() || !server.openShop(plan.tills))
        return 1;
    out() << plan.tills << " tills, " << plan.bills << " bills each, " << plan.kills << " kills, seed " << plan.seed
          << Qt::endl;
    QElapsedTimer time;
    time.start();
    bool isLate = false;
    int kills = 0;
    {
        Crowd crowd(plan, server.port());
        const int all = plan.tills * plan.bills;
        while (!isLate && crowd.isAtWork()) {
            QThread::msleep(100);
            // Kills are spread evenly over the bills.
            if (kills < plan.kills &&
                TillBooks::acknowledged(plan.folder) >= qint64(all) * (kills + 1) / (plan.kills + 1))
                killSomething(kills++, crowd, server);
            isLate = time.elapsed() > plan.minutes * 60000LL;
        }
    }
    TillBooks books(plan.folder);
    QStringList faults = server.check(books);
    if (isLate)
        faults.prepend(QString("not done within %1 minutes").arg(plan.minutes));
    out() << books.summary() << '\n' << kills << " kills, " << time.elapsed() / 1000 << " seconds" << Qt::endl;
    for (const QString& fault : faults)
        out() << "FAULT: " << fault << Qt::endl;
    out() << (faults.isEmpty() ? "Every acknowledged bill stands once and whole, and no number is missing."
                               : "The books are wrong.")
          << Qt::endl;
    return faults.isEmpty() ? 0 : 1;
}
} // namespace

/**
 * Runs many tills of one shop on a private server and checks the database afterwards; started by scripts/many-tills.
 */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 7 && words[1] == "till")
        return beTill(words);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"tills", "So many at once.", "number", "16"},
                       {"bills", "So many acknowledged ones a till.", "number", "1000"},
                       {"pace", "Milliseconds between two bills; 0: none.", "ms", "0"},
                       {"kills", "So many kills of tills, sessions and the server.", "number", "0"},
                       {"minutes", "Give up after.", "number", "60"},
                       {"seed", "Who is killed.", "number", "1"}});
    parser.addPositionalArgument("folder", "Takes the server's data and the journals; must be empty.");
    parser.process(application);
    const auto number = [&parser](const char* name) { return qMax(0, parser.value(name).toInt()); };
    if (parser.positionalArguments().size() != 1 || number("tills") < 1)
        parser.showHelp(2);
    return supervise({number("tills"), number("bills"), number("pace"), number("kills"), number("minutes"),
                      static_cast<quint32>(number("seed")), parser.positionalArguments().first()});
}
