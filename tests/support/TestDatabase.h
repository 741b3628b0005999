#pragma once

#include "app/context/ConnectionSettings.h"

#include <QSqlDatabase>
#include <QVariant>

/**
 * A database of the test's own, open as the program's connection, dropped at the end. An installed one is a clone of
 * a template that the program's own installer made; an empty one holds nothing.
 */
class TestDatabase
{
public:
    enum Kind { Empty, Installed };

    explicit TestDatabase(Kind kind = Installed);
    ~TestDatabase();
    Q_DISABLE_COPY(TestDatabase)

    [[nodiscard]] static QString host();
    [[nodiscard]] static int port();
    [[nodiscard]] static QString user();
    [[nodiscard]] const QString& name() const { return m_name; }

    /** As a workstation has them that works with it. */
    [[nodiscard]] ConnectionSettings settings() const;

    /** Opens the program's connection again, as after a restart. */
    bool open();

    // The other workstation: a connection of its own to the same database.
    /** Runs the statement there; a failure fails the test. */
    void run(const QString& statement);
    /** Runs the statements of a file below tests/. */
    void runFile(const QString& path);
    [[nodiscard]] static QString textOf(const QString& path);
    /** The first value of the first row there. */
    QVariant value(const QString& statement);
    /** Ends every session of the program's connection, as a server that goes away does. */
    void killConnections();

private:
    [[nodiscard]] QSqlDatabase other() const;

    QString m_name;
    QString m_otherName;
};

/** Makes an administrator with every right the logged-in user. */
void loginAsAdmin();
/** Makes a user the logged-in one who has just these grants of one service: pairs of key and grant. */
void loginWithRights(const QString& businessName, const QList<QPair<int, int>>& grants, int userId = 77);

/** Counts the statements that the program sends while it lives. */
class StatementCount
{
public:
    StatementCount();
    [[nodiscard]] int count() const;

private:
    quint64 m_start;
};
