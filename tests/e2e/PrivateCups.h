#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/**
 * A print server of the test's own, reached through a socket file only, that needs no rights beyond the user's. Its
 * printers write each job to one file. It dies with the test, however the test ends.
 */
class PrivateCups
{
public:
    PrivateCups() = default;
    ~PrivateCups() { stop(); }
    Q_DISABLE_COPY(PrivateCups)

    /** Starts the server, or starts it again with the queues it had; what went wrong, or nothing. */
    [[nodiscard]] QString start();
    /** Kills it on the spot, as a cut cable or a crash would. */
    void stop();
    /** Holds it still, so that it takes connections and answers none, or lets it go on. */
    void hold() const { ::kill(pid_t(m_server.processId()), SIGSTOP); }
    void letGo() const { ::kill(pid_t(m_server.processId()), SIGCONT); }
    /** Adds a raw queue; what went wrong, or nothing. */
    [[nodiscard]] QString addRawQueue(const QString& name, bool asDefault);

    /** The value of CUPS_SERVER with which programs find this server. */
    [[nodiscard]] QByteArray address() const { return QFile::encodeName(m_root.filePath("sock")); }
    /** What came out of the printers, in the order in which the jobs were accepted. */
    [[nodiscard]] QList<QByteArray> printed() const;

private:
    [[nodiscard]] QString writeFiles() const;

    QTemporaryDir m_root{"/tmp/zcups.XXXXXX"};
    QProcess m_server;
};
