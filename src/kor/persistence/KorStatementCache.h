#pragma once

#include "kor/persistence/KorResultLayout.h"

#include <QCache>
#include <QPointer>
#include <QSqlDriver>
#include <QSqlQuery>

#include <memory>
#include <vector>

/** A prepared statement, and the layout of its results. */
struct KorStatement
{
    QString text;
    // A QSqlQuery without a result would look up the default connection, which a worker thread may not use.
    QSqlQuery query{static_cast<QSqlResult*>(nullptr)};
    KorResultLayout layout;
    quint64 schema = 0;
    int session = 0;
};

/**
 * The idle prepared statements of one thread's connection, so that a statement with the same text needs one round trip
 * instead of three. A statement belongs to the session that prepared it and is not used after the program has changed
 * the schema.
 */
class KorStatementCache
{
public:
    [[nodiscard]] static KorStatementCache& ofThread();
    /** Invalidates the prepared statements of all connections. */
    static void schemaChanged();

    /** Null if there is none with this text. */
    [[nodiscard]] std::unique_ptr<KorStatement> take(const QString& text, const QSqlDriver* driver);
    /** Marks a new statement with the current session and schema. */
    void sign(KorStatement& statement) const;
    void giveBack(std::unique_ptr<KorStatement> statement);
    /** For a statement that the server no longer knows. */
    void abandon(std::unique_ptr<KorStatement> statement);
    /** Call before a reconnect: the new session has no prepared statements. */
    void connectionLost();

private:
    // Limited, because rare texts (searches with the text in the SQL) would pile up.
    QCache<QString, KorStatement> m_idle{256};
    // Freeing these would send a DEALLOCATE that fails and breaks the open transaction. They are kept until their
    // driver is gone; freeing them then sends nothing.
    std::vector<std::unique_ptr<KorStatement>> m_abandoned;
    QPointer<const QSqlDriver> m_driver;
    quint64 m_schema = 0;
    int m_session = 0;
};
