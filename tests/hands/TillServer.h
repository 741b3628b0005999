#pragma once

#include <QProcess>
#include <QStringList>

class DatabaseManager;
class TillBooks;

/**
 * A PostgreSQL server with durable commits, as in a restaurant, in its own folder. It can be killed and started again
 * with its data.
 */
class TillServer
{
public:
    explicit TillServer(const QString& folder);
    ~TillServer();
    Q_DISABLE_COPY(TillServer)

    [[nodiscard]] int port() const { return m_port; }
    /** Opens the shop's database like the program. */
    [[nodiscard]] static bool open(DatabaseManager* manager, int port);

    /** False, with a message on stderr, if it does not start. */
    bool start();
    /** Installs the database, with a table for every till. */
    bool openShop(int tills);
    /** Kills the server with SIGKILL and starts it again with its data. */
    void killAndStart();
    /** Ends the session of one till. */
    void endASession();
    /** The faults found by TillBooks. */
    QStringList check(TillBooks& books);

private:
    void stop();
    bool run(const QString& statement);

    QString m_folder;
    int m_port;
    QProcess m_script;
};
