#pragma once

#include <QString>

class DatabaseManager;
struct ConnectionSettings;

/**
 * The databases of the server that a connection leads to. It is asked through the server's maintenance database, which
 * takes the place of the program's connection and is closed at the end: open that one anew afterwards.
 */
class DatabaseServer
{
public:
    DatabaseServer(DatabaseManager* manager, const ConnectionSettings& connection);
    ~DatabaseServer();
    Q_DISABLE_COPY(DatabaseServer)

    /** False where the server, or that database of its, lets nobody in. */
    [[nodiscard]] bool isOpen() const { return m_open; }
    /** True also where that could not be found out. */
    [[nodiscard]] bool has(const QString& database) const;
    // False leaves the server's words in failure().
    bool create(const QString& database);
    bool rename(const QString& database, const QString& name);
    [[nodiscard]] const QString& failure() const { return m_failure; }

    /** The statement of rename(). */
    [[nodiscard]] static QString renaming(const QString& database, const QString& name);

private:
    bool run(const QString& statement);

    DatabaseManager* m_manager;
    bool m_open;
    QString m_failure;
};
