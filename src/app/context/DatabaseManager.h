#pragma once

#include <QObject>
#include <QSqlDatabase>

/** The only class that opens or closes the program's connection. All others use it as Qt's default connection. */
class DatabaseManager : public QObject
{
    Q_OBJECT

public:
    explicit DatabaseManager(QObject* parent = nullptr);
    ~DatabaseManager() override;

    /** On false, lastErrorText() has the driver's message. An unreachable host fails after five seconds. */
    bool open(const QString& host, const QString& databaseName, const QString& userName, const QString& password,
              int port);
    void close();
    [[nodiscard]] bool isOpen() const { return m_database.isOpen(); }
    [[nodiscard]] QSqlDatabase database() const { return m_database; }
    void setDatabase(const QSqlDatabase& database) { m_database = database; }
    [[nodiscard]] QString lastErrorText() const;
    /**
     * Shows the workstation and the user to other workstations, as the session's name. It also applies after a
     * reconnect.
     */
    void tellWho(const QString& userName);

private:
    [[nodiscard]] QString connectOptions() const;

    QSqlDatabase m_database;
    // Shown to other workstations when they wait for a lock of this session.
    QString m_sessionName;
};
