#pragma once

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

/** The way to the program's connection from any thread. */
class KorDatabase
{
public:
    /**
     * The default connection on the thread of the application; on any other thread a clone of it, opened there on
     * first use and removed when the thread ends, since a driver serves only the thread that owns it.
     */
    [[nodiscard]] static QSqlDatabase current();

    /** Opens it as QSqlDatabase does, with the window told that the program waits; see KorServerCall. */
    static bool open(QSqlDatabase& database);

    /** True on the application's own thread, where the default connection and the entity pool live. */
    [[nodiscard]] static bool isApplicationThread();

    /** True while a KorTransaction of this thread is under way. */
    [[nodiscard]] static bool isInTransaction();
};

/**
 * One transaction on the current connection, rolled back when it goes out of scope unfinished. Transactions do not
 * nest: a second one inside is accepted by the server with a warning, and its commit ends the one and only.
 * While it is open a lost connection is not opened anew: every statement to its end fails.
 */
class KorTransaction
{
public:
    /**
     * The statements take the locks that the work needs, in the order that docs/database.md tells. They go in the same
     * trip as the beginning, and every one of them before the first row is written. The last one may ask something.
     */
    explicit KorTransaction(const QStringList& locks = {});
    ~KorTransaction();
    Q_DISABLE_COPY(KorTransaction)

    [[nodiscard]] bool isOpen() const { return m_open; }
    /** True when it is open, but a lock could not be had: nothing can be done in it any more. */
    [[nodiscard]] bool isRefused() const { return !m_refusal.isEmpty(); }
    /** What the last statement of the locks found: the first column of its rows. */
    [[nodiscard]] const QVariantList& found() const { return m_found; }
    [[nodiscard]] bool isConnected() const { return m_database.isOpen(); }
    bool commit();
    bool rollback();
    /** True when the connection went while it ended: nobody knows whether it stands. */
    [[nodiscard]] bool isUnsure() const { return m_unsure; }
    /** Why it could not begin or end, or have its locks. */
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
