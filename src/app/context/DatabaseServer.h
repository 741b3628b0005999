#pragma once

#include <QString>

class DatabaseManager;
struct ConnectionSettings;

/**
 * Lists, creates and renames databases on a server. It replaces the program's connection with one to the server's
 * maintenance database and closes that in the destructor: open the program's connection again afterwards.
 */
class DatabaseServer
{
public:
    DatabaseServer(DatabaseManager* manager, const ConnectionSettings& connection);
    ~DatabaseServer();
    Q_DISABLE_COPY(DatabaseServer)

    /** False if the server cannot be reached or refuses the connection to its maintenance database. */
    [[nodiscard]] bool isOpen() const { return m_open; }
    /** True also if the check failed. */
    [[nodiscard]] bool has(const QString& database) const;
    // On false, failure() has the server's message.
    bool create(const QString& database);
    bool rename(const QString& database, const QString& name);
    [[nodiscard]] const QString& failure() const { return m_failure; }

    /** The SQL of rename(). */
    [[nodiscard]] static QString renaming(const QString& database, const QString& name);

private:
    bool run(const QString& statement);

    DatabaseManager* m_manager;
    bool m_open;
    QString m_failure;
};
