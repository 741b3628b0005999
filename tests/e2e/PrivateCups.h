#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/**
 * A private print server on a socket file that needs no special rights. Its printers write each job to one file. It
 * always ends with the test.
 */
class PrivateCups
{
public:
    PrivateCups() = default;
    ~PrivateCups() { stop(); }
    Q_DISABLE_COPY(PrivateCups)

    /** Starts the server, or restarts it with its queues; returns the error, or an empty text. */
    [[nodiscard]] QString start();
    /** Kills it at once, like a crash. */
    void stop();
    /** Suspends it, so that it accepts connections but does not answer, or resumes it. */
    void hold() const { ::kill(pid_t(m_server.processId()), SIGSTOP); }
    void letGo() const { ::kill(pid_t(m_server.processId()), SIGCONT); }
    /** Adds a raw queue; returns the error, or an empty text. */
    [[nodiscard]] QString addRawQueue(const QString& name, bool asDefault);

    /** The value of CUPS_SERVER with which programs find this server. */
    [[nodiscard]] QByteArray address() const { return QFile::encodeName(m_root.filePath("sock")); }
    /** The printed jobs in the order in which they were accepted. */
    [[nodiscard]] QList<QByteArray> printed() const;

private:
    [[nodiscard]] QString writeFiles() const;

    QTemporaryDir m_root{"/tmp/zcups.XXXXXX"};
    QProcess m_server;
};
