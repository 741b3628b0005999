#include "hands/TillServer.h"

#include "app/context/DatabaseManager.h"
#include "hands/Till.h"
#include "hands/TillBooks.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTcpServer>
#include <QThread>

#include <csignal>

namespace
{
const char* const host = "127.0.0.1";
const char* const databaseName = "tills";
const char* const user = "postgres";
const char* const password = "many tills";
constexpr int patience = 60000;

int freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}
} // namespace

TillServer::TillServer(const QString& folder) : m_folder(folder), m_port(freePort())
{
    qputenv("ZAVEL_DB_PASSWORD", password);
}

TillServer::~TillServer() { stop(); }

bool TillServer::open(DatabaseManager* manager, int port)
{
    return manager->open(host, databaseName, user, password, port);
}

bool TillServer::start()
{
    // The processes of a killed server may keep its shared memory for a moment.
    for (int i = 0; i < 10; ++i) {
        m_script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_script.start(QString(ZAVEL_SOURCE_DIR) + "/scripts/private-postgres",
                       {"keep", m_folder + "/cluster", QString::number(m_port), "--", "sh", "-c", "echo up; cat"});
        if (m_script.waitForReadyRead(patience))
            return true;
        stop();
        QThread::sleep(1);
    }
    return false;
}

void TillServer::stop()
{
    // Closing its input ends the command that the server runs for, and so the server.
    m_script.closeWriteChannel();
    m_script.waitForFinished(patience);
}

bool TillServer::openShop(int tills)
{
    QProcess setup;
    setup.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    setup.start(ZAVEL_SETUP_PROGRAM, {"install", "--create-database", "--host", host, "--port", QString::number(m_port),
                                      "--database", databaseName});
    if (!setup.waitForFinished(patience) || setup.exitCode() != 0)
        return false;
    for (int number = 1; number <= tills; ++number) {
        if (!run(QString("INSERT INTO meja (kode, nama, version) VALUES ('%1', '%1', 1)").arg(Till::tableCode(number))))
            return false;
    }
    return true;
}

void TillServer::killAndStart()
{
    QFile file(m_folder + "/cluster/data/postmaster.pid");
    if (!file.open(QIODevice::ReadOnly))
        return;
    const int postmaster = file.readLine().trimmed().toInt();
    if (postmaster > 0)
        ::kill(postmaster, SIGKILL);
    stop();
    if (!start())
        qFatal("the server did not come back");
}

void TillServer::endASession()
{
    run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() AND pid <> "
        "pg_backend_pid() ORDER BY random() LIMIT 1");
}

bool TillServer::run(const QString& statement)
{
    DatabaseManager manager;
    if (!open(&manager, m_port))
        return false;
    QSqlQuery query(manager.database());
    const bool done = query.exec(statement);
    if (!done)
        qWarning("%s", qPrintable(query.lastError().text()));
    query = QSqlQuery();
    manager.close();
    return done;
}

QStringList TillServer::check(TillBooks& books)
{
    DatabaseManager manager;
    if (!open(&manager, m_port))
        return {"the server can not be reached: " + manager.lastErrorText()};
    const QStringList faults = books.faults(manager.database());
    manager.close();
    return faults;
}
