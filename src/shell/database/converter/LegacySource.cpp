#include "shell/database/converter/LegacySource.h"

#include <QSqlError>

namespace
{
constexpr char connectionName[] = "SOURCEDB";
constexpr char nextRows[] = "FETCH FORWARD 200 FROM legacy_rows";
} // namespace

LegacySource::LegacySource(const ConnectionSettings& settings) : m_settings(settings) {}

LegacySource::~LegacySource()
{
    m_lines.reset();
    m_database.close();
    // removeDatabase() requires that no copy of the connection exists.
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(connectionName);
}

bool LegacySource::open()
{
    m_database = QSqlDatabase::addDatabase("QPSQL", connectionName);
    m_database.setHostName(m_settings.host);
    m_database.setPort(m_settings.port);
    m_database.setDatabaseName(m_settings.database);
    m_database.setUserName(m_settings.user);
    m_database.setPassword(m_settings.password);
    m_database.setConnectOptions("connect_timeout=5;tcp_user_timeout=10000");
    if (!m_database.open()) {
        m_failure = m_database.lastError().text();
        return false;
    }
    QSqlQuery query(m_database);
    return run(query, "SET default_transaction_read_only = on");
}

bool LegacySource::run(QSqlQuery& query, const QString& statement)
{
    if (query.exec(statement))
        return true;
    m_failure = query.lastError().text();
    return false;
}

bool LegacySource::read(const QString& statement, const std::function<bool(const LegacyRow&)>& take)
{
    m_linesFailed = false;
    m_failure.clear();
    QSqlQuery query(m_database);
    // One snapshot for documents and lines, even if the former system is still in use.
    const bool done = run(query, "BEGIN ISOLATION LEVEL REPEATABLE READ") && fetch(statement, take);
    query.exec(done ? "COMMIT" : "ROLLBACK");
    m_lines.reset();
    return done;
}

bool LegacySource::fetch(const QString& statement, const std::function<bool(const LegacyRow&)>& take)
{
    QSqlQuery rows(m_database);
    if (!run(rows, "DECLARE legacy_rows NO SCROLL CURSOR FOR " + statement))
        return false;
    do {
        if (!run(rows, nextRows))
            return false;
        while (rows.next()) {
            const bool goOn = take(LegacyRow(rows.record()));
            if (m_linesFailed || !goOn)
                return !m_linesFailed;
        }
    } while (rows.size() > 0);
    return true;
}

QList<LegacyRow> LegacySource::lines(const QString& statement, const QVariant& key)
{
    if (!m_lines || m_linesStatement != statement) {
        m_lines = std::make_unique<QSqlQuery>(m_database);
        m_linesStatement = statement;
        m_linesFailed = !m_lines->prepare(statement);
    }
    QList<LegacyRow> rows;
    m_lines->bindValue(0, key);
    if (m_linesFailed || !m_lines->exec()) {
        m_linesFailed = true;
        m_failure = m_lines->lastError().text();
        return rows;
    }
    while (m_lines->next())
        rows.append(LegacyRow(m_lines->record()));
    return rows;
}
