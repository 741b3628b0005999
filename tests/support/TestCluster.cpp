#include "support/TestCluster.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace
{
const char* const maintenance = "maintenance";
constexpr int startTimeout = 30000;
} // namespace

TestCluster& TestCluster::instance()
{
    static TestCluster cluster;
    return cluster;
}

TestCluster::TestCluster() : m_host(qEnvironmentVariable("ZAVEL_TEST_PGHOST"))
{
    if (m_host.isEmpty()) {
        m_host = start(m_own, {"throwaway", "--", "sh", "-c", "echo HOST $ZAVEL_TEST_PGHOST; cat >/dev/null"}).first();
    } else {
        m_port = qEnvironmentVariable("ZAVEL_TEST_PGPORT", "5432").toInt();
        m_user = qEnvironmentVariable("ZAVEL_TEST_PGUSER", "postgres");
    }
    QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", maintenance);
    database.setHostName(m_host);
    database.setPort(m_port);
    database.setUserName(m_user);
    database.setDatabaseName("postgres");
    if (!database.open())
        qFatal("test cluster: %s", qPrintable(database.lastError().text()));
}

TestCluster::~TestCluster()
{
    if (m_own.state() != QProcess::NotRunning) {
        // Closing its input ends the command that the cluster runs for, and so the cluster.
        m_own.closeWriteChannel();
        m_own.waitForFinished(startTimeout);
    }
}

QStringList TestCluster::start(QProcess& script, const QStringList& arguments)
{
    script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    script.start(QString(ZAVEL_SOURCE_DIR) + "/scripts/private-postgres", arguments);
    while (script.waitForReadyRead(startTimeout)) {
        while (script.canReadLine()) {
            const QStringList words = QString::fromUtf8(script.readLine()).simplified().split(' ');
            if (words.first() == "HOST")
                return words.mid(1);
        }
    }
    qFatal("the throw-away cluster did not start");
}

void TestCluster::run(const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(maintenance));
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
}

bool TestCluster::hasDatabase(const QString& name)
{
    QSqlQuery query(QSqlDatabase::database(maintenance));
    query.prepare("SELECT 1 FROM pg_database WHERE datname = ?");
    query.addBindValue(QVariant(name));
    return query.exec() && query.next();
}

void TestCluster::lock() { run("SELECT pg_advisory_lock(4711)"); }

void TestCluster::unlock() { run("SELECT pg_advisory_unlock(4711)"); }

void TestCluster::replaceTool(const QDir& folder, const QString& name, const QByteArray& script)
{
    QFile tool(folder.filePath(name));
    if (!tool.open(QIODevice::WriteOnly) || tool.write(script) < 0 ||
        !tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        qFatal("%s: %s", qPrintable(tool.fileName()), qPrintable(tool.errorString()));
    qputenv("ZAVEL_PG_BIN", QFile::encodeName(folder.path()));
}
