#pragma once

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QString>

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
    KorTransaction();
    ~KorTransaction();
    Q_DISABLE_COPY(KorTransaction)

    [[nodiscard]] bool isOpen() const { return m_open; }
    [[nodiscard]] bool isConnected() const { return m_database.isOpen(); }
    bool commit();
    bool rollback();
    /** True when the connection went while it ended: nobody knows whether it stands. */
    [[nodiscard]] bool isUnsure() const { return m_unsure; }
    /** Why it could not begin or end. */
    [[nodiscard]] QString failure() const;

private:
    [[nodiscard]] bool begin();
    void end();

    QSqlDatabase m_database;
    bool m_open;
    bool m_ended = false;
    bool m_unsure = false;
};
