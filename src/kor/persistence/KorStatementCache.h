#pragma once

#include "kor/persistence/KorResultLayout.h"

#include <QCache>
#include <QPointer>
#include <QSqlDriver>
#include <QSqlQuery>

#include <memory>
#include <vector>

/** A statement that the server has parsed, and what is known of its results. */
struct KorStatement
{
    QString text;
    // A query made without one looks for the default connection, which a worker has no right to.
    QSqlQuery query{static_cast<QSqlResult*>(nullptr)};
    KorResultLayout layout;
    quint64 schema = 0;
    int session = 0;
};

/**
 * The prepared statements of one thread's connection that nobody is using just now, so that the next one with the same
 * text costs one trip to the server instead of three. A statement belongs to the session that prepared it, and it is
 * not used again after the program has changed the schema.
 */
class KorStatementCache
{
public:
    [[nodiscard]] static KorStatementCache& ofThread();
    /** From now on no statement prepared before, on whatever connection, is used again. */
    static void schemaChanged();

    /** Null when there is none with this text. */
    [[nodiscard]] std::unique_ptr<KorStatement> take(const QString& text, const QSqlDriver* driver);
    /** Keeps a statement just prepared apart from those of other sessions and schemas. */
    void sign(KorStatement& statement) const;
    void giveBack(std::unique_ptr<KorStatement> statement);
    /** For a statement that the server does not know any more. */
    void abandon(std::unique_ptr<KorStatement> statement);
    /** The connection is opened anew: the server has forgotten all statements. */
    void connectionLost();

private:
    // Rarely used texts (a search with the text in it) make room for others.
    QCache<QString, KorStatement> m_idle{256};
    // Freeing one of these would send a DEALLOCATE that fails, and with it the transaction around it. They stay
    // until their driver is gone, when freeing them sends nothing.
    std::vector<std::unique_ptr<KorStatement>> m_abandoned;
    QPointer<const QSqlDriver> m_driver;
    quint64 m_schema = 0;
    int m_session = 0;
};
