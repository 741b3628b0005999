#pragma once

#include <QProcess>
#include <QStringList>

class DatabaseManager;
class TillBooks;

/**
 * A PostgreSQL server that keeps what it has acknowledged, as the one of a restaurant does, in a folder of its own. It
 * can be killed and started again on what it left.
 */
class TillServer
{
public:
    explicit TillServer(const QString& folder);
    ~TillServer();
    Q_DISABLE_COPY(TillServer)

    [[nodiscard]] int port() const { return m_port; }
    /** Opens the shop's database, as the program does. */
    [[nodiscard]] static bool open(DatabaseManager* manager, int port);

    /** False, with a word to the errors, where it does not come up. */
    bool start();
    /** Installs the database, with a table for every till. */
    bool openShop(int tills);
    /** Kills the server without a warning, and starts it on what it left. */
    void killAndStart();
    /** Ends the session of somebody. */
    void endASession();
    /** The faults of the books. */
    QStringList check(TillBooks& books);

private:
    void stop();
    bool run(const QString& statement);

    QString m_folder;
    int m_port;
    QProcess m_script;
};
