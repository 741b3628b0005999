#pragma once

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

/** Access to the program's connection from any thread. */
class KorDatabase
{
public:
    /**
     * The default connection on the application's thread. On any other thread a clone, opened on first use and removed
     * when the thread ends, because a connection may be used only by the thread that created it.
     */
    [[nodiscard]] static QSqlDatabase current();

    /** Opens it like QSqlDatabase::open(), but shows that the program waits; see KorServerCall. */
    static bool open(QSqlDatabase& database);

    /** True on the application's thread, which owns the default connection and the entity pool. */
    [[nodiscard]] static bool isApplicationThread();

    /** True while this thread has an open KorTransaction. */
    [[nodiscard]] static bool isInTransaction();
};

/**
 * One transaction on the current connection, rolled back by the destructor if it was not committed. Do not nest: the
 * server only warns about an inner one, and its commit ends the outer transaction. While it is open a lost connection
 * is not reopened: all further statements fail.
 */
class KorTransaction
{
public:
    /**
     * The statements take the needed locks, in the order given in docs/database.md. They are sent with BEGIN in one
     * round trip, before any row is written. The last one may be a query, see found().
     */
    explicit KorTransaction(const QStringList& locks = {});
    ~KorTransaction();
    Q_DISABLE_COPY(KorTransaction)

    [[nodiscard]] bool isOpen() const { return m_open; }
    /** True if the transaction is open but a lock was refused: nothing can be done in it any more. */
    [[nodiscard]] bool isRefused() const { return !m_refusal.isEmpty(); }
    /** The first column of all rows that the last lock statement returned. */
    [[nodiscard]] const QVariantList& found() const { return m_found; }
    [[nodiscard]] bool isConnected() const { return m_database.isOpen(); }
    bool commit();
    bool rollback();
    /** True if the connection was lost during the commit: it is unknown whether it was committed. */
    [[nodiscard]] bool isUnsure() const { return m_unsure; }
    /** Why the transaction could not begin, commit, or take its locks. */
    [[nodiscard]] QString failure() const;

private:
    bool begin(const QStringList& locks);
    void end();

    QSqlDatabase m_database;
    QString m_refusal;
    QVariantList m_found;
    bool m_open;
    bool m_ended = false;
    bool m_unsure = false;
};
