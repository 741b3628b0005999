#pragma once

#include <QProcess>
#include <QSqlDatabase>
#include <QVariant>

/** One of two PostgreSQL servers, used directly and not through the program. */
class PairedServer
{
public:
    PairedServer(const QString& name, const QString& host, const QString& databaseName);
    ~PairedServer();
    Q_DISABLE_COPY(PairedServer)

    [[nodiscard]] const QString& host() const { return m_host; }
    /** The first field of the statement's first row; an error ends the test program. */
    QVariant value(const QString& statement) const;
    [[nodiscard]] int count(const QString& table) const { return value("SELECT count(*) FROM " + table).toInt(); }

private:
    QString m_name;
    QString m_host;
};

/** Two temporary servers; the second is a hot standby that each commit of the first waits for. */
class ServerPair
{
public:
    ServerPair();
    ~ServerPair();
    Q_DISABLE_COPY(ServerPair)

    [[nodiscard]] const QString& firstHost() const { return m_firstHost; }
    [[nodiscard]] const QString& standbyHost() const { return m_standbyHost; }

    /** Kills all processes of this server at once, as in a power cut. */
    static void powerCut(qint64 postmaster);
    static void signalProcess(const char* signal, qint64 process);

private:
    QProcess m_script;
    QString m_firstHost;
    QString m_standbyHost;
};
