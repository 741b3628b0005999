#pragma once

#include <QObject>
#include <QSqlDatabase>

/** The only class that opens or closes the program's connection; everyone else reaches it as the default one. */
class DatabaseManager : public QObject
{
    Q_OBJECT

public:
    explicit DatabaseManager(QObject* parent = nullptr);
    ~DatabaseManager() override;

    /** False leaves the driver's words in lastErrorText(). An unreachable host is given up after five seconds. */
    bool open(const QString& host, const QString& databaseName, const QString& userName, const QString& password,
              int port);
    void close();
    [[nodiscard]] bool isOpen() const { return m_database.isOpen(); }
    [[nodiscard]] QSqlDatabase database() const { return m_database; }
    void setDatabase(const QSqlDatabase& database) { m_database = database; }
    [[nodiscard]] QString lastErrorText() const;
    /** Names this workstation and who works at it to the others, also after the connection was lost and opened anew. */
    void tellWho(const QString& userName);

private:
    [[nodiscard]] QString connectOptions() const;

    QSqlDatabase m_database;
    // As the others read it when they wait for what it holds.
    QString m_sessionName;
};
