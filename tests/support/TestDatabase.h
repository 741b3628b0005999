#pragma once

#include "app/context/ConnectionSettings.h"

#include <QSqlDatabase>
#include <QVariant>

/**
 * A separate database for a test, opened as the program's connection and dropped at the end. An installed one is a
 * clone of a template created by the program's installer; an empty one has no tables.
 */
class TestDatabase
{
public:
    enum Kind { Empty, Installed };

    explicit TestDatabase(Kind kind = Installed);
    /** An existing database, which is left as it is. */
    explicit TestDatabase(const QString& existing);
    ~TestDatabase();
    Q_DISABLE_COPY(TestDatabase)

    [[nodiscard]] static QString host();
    [[nodiscard]] static int port();
    [[nodiscard]] static QString user();
    [[nodiscard]] const QString& name() const { return m_name; }

    /** The connection settings for this database. */
    [[nodiscard]] ConnectionSettings settings() const;

    /** Opens the program's connection again, as after a restart. */
    bool open();

    // The other workstation: a second connection to the same database.
    /** Runs the statement on that connection; an error fails the test. */
    void run(const QString& statement);
    /** Runs the statements of a file below tests/. */
    void runFile(const QString& path);
    [[nodiscard]] static QString textOf(const QString& path);
    /** The first value of the first row, read on that connection. */
    QVariant value(const QString& statement);
    /** Ends all sessions of the program, like a server that stops. */
    void killConnections();

private:
    void connect();
    [[nodiscard]] QSqlDatabase other() const;

    QString m_name;
    QString m_otherName;
    bool m_isOwn = true;
};

/** Logs in an administrator with all rights. */
void loginAsAdmin();
/** Logs in a user who has only these grants of one service: pairs of right and grant. */
void loginWithRights(const QString& businessName, const QList<QPair<int, int>>& grants, int userId = 77);

/** Counts the statements that the program sends while this object exists. */
class StatementCount
{
public:
    StatementCount();
    [[nodiscard]] int count() const;

private:
    quint64 m_start;
};
