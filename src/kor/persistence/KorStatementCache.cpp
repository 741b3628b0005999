#include "kor/persistence/KorStatementCache.h"

#include "kor/persistence/KorServerCall.h"

#include <atomic>

namespace
{
std::atomic<quint64> schemaChanges{0};
}

KorStatementCache& KorStatementCache::ofThread()
{
    thread_local KorStatementCache cache;
    return cache;
}

void KorStatementCache::schemaChanged() { ++schemaChanges; }

std::unique_ptr<KorStatement> KorStatementCache::take(const QString& text, const QSqlDriver* driver)
{
    if (m_driver != driver) {
        m_idle.clear();
        m_abandoned.clear();
        m_driver = driver;
        ++m_session;
    }
    if (m_schema != schemaChanges) {
        m_schema = schemaChanges;
        // Freeing a statement sends DEALLOCATE to the server.
        KorServerCall::run(driver, [this] { m_idle.clear(); });
    }
    return std::unique_ptr<KorStatement>(m_idle.take(text));
}

void KorStatementCache::sign(KorStatement& statement) const
{
    statement.schema = m_schema;
    statement.session = m_session;
}

void KorStatementCache::giveBack(std::unique_ptr<KorStatement> statement)
{
    if (statement->session != m_session) {
        if (statement->query.driver() && statement->query.driver() == m_driver)
            abandon(std::move(statement));
    } else if (statement->schema == schemaChanges && !m_idle.contains(statement->text)) {
        const auto keep = [&] {
            const QString text = statement->text;
            m_idle.insert(text, statement.release());
        };
        // Inserting may evict another statement, whose DEALLOCATE goes to the server.
        if (m_idle.totalCost() < m_idle.maxCost())
            keep();
        else
            KorServerCall::run(m_driver, keep);
    }
}

void KorStatementCache::abandon(std::unique_ptr<KorStatement> statement)
{
    m_abandoned.push_back(std::move(statement));
}

void KorStatementCache::connectionLost()
{
    ++m_session;
    for (const QString& text : m_idle.keys())
        abandon(std::unique_ptr<KorStatement>(m_idle.take(text)));
}
