#include "ServerPair.h"

#include "support/TestCluster.h"

#include <QSqlError>
#include <QSqlQuery>

PairedServer::PairedServer(const QString& name, const QString& host, const QString& databaseName)
    : m_name(name), m_host(host)
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", m_name);
    database.setHostName(host);
    database.setPort(5432);
    database.setUserName("postgres");
    database.setDatabaseName(databaseName);
    if (!database.open())
        qFatal("%s: %s", qPrintable(name), qPrintable(database.lastError().text()));
}

PairedServer::~PairedServer()
{
    QSqlDatabase::database(m_name, false).close();
    QSqlDatabase::removeDatabase(m_name);
}

QVariant PairedServer::value(const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(m_name, false));
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    return query.next() ? query.value(0) : QVariant();
}

ServerPair::ServerPair()
{
    const QStringList hosts =
        TestCluster::start(m_script, {"pair", "--", "sh", "-c",
                                      "echo HOST $ZAVEL_TEST_PGHOST $ZAVEL_TEST_STANDBY_PGHOST; cat >/dev/null"});
    m_firstHost = hosts.value(0);
    m_standbyHost = hosts.value(1);
}

ServerPair::~ServerPair()
{
    m_script.closeWriteChannel();
    m_script.waitForFinished();
}

void ServerPair::powerCut(qint64 postmaster)
{
    // Stopped first, so that it starts no further processes.
    QProcess::execute(
        "sh", {"-c", "kill -STOP $0; kill -KILL $0 $(cat /proc/$0/task/$0/children)", QString::number(postmaster)});
}

void ServerPair::signalProcess(const char* signal, qint64 process)
{
    QProcess::execute("kill", {signal, QString::number(process)});
}
