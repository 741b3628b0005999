#include "app/context/DatabaseServer.h"

#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace
{
/** The driver's own quoting would split the name at a dot, as schema and table. */
QString quoted(QString name) { return '"' + name.replace('"', "\"\"") + '"'; }
} // namespace

DatabaseServer::DatabaseServer(DatabaseManager* manager, const ConnectionSettings& connection)
    : m_manager(manager),
      m_open(manager->open(connection.host, "postgres", connection.user, connection.password, connection.port))
{
    if (!m_open)
        m_failure = manager->lastErrorText().trimmed();
}

DatabaseServer::~DatabaseServer() { m_manager->close(); }

bool DatabaseServer::has(const QString& database) const
{
    QSqlQuery query(m_manager->database());
    query.prepare("SELECT 1 FROM pg_database WHERE datname = :name");
    query.bindValue(":name", database);
    return !query.exec() || query.next();
}

bool DatabaseServer::create(const QString& database)
{
    return run(QString("CREATE DATABASE %1 TEMPLATE template0 ENCODING 'UTF8'").arg(quoted(database)));
}

bool DatabaseServer::rename(const QString& database, const QString& name) { return run(renaming(database, name)); }

QString DatabaseServer::renaming(const QString& database, const QString& name)
{
    return "ALTER DATABASE " + quoted(database) + " RENAME TO " + quoted(name);
}

bool DatabaseServer::run(const QString& statement)
{
    if (!m_open)
        return false;
    QSqlQuery query(m_manager->database());
    if (query.exec(statement))
        return true;
    m_failure = query.lastError().text().trimmed();
    return false;
}
