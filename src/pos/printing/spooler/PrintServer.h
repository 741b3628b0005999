#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <cups/http.h>
#include <cups/ipp.h>

#include <atomic>
#include <memory>

struct CupsFree
{
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};

using IppMessage = std::unique_ptr<ipp_t, CupsFree>;

/**
 * One connection to the print server, for a few requests within a bounded time. The library's own calls connect and ask
 * again by themselves, for minutes where a server takes the connection and stays silent; here every wait ends when the
 * time is over or the interrupt is set. A call that fails says why in error().
 */
class PrintServer
{
public:
    /** All of the work on this connection has to be done within these milliseconds. */
    explicit PrintServer(int milliseconds, const std::atomic_bool* interrupt = nullptr);
    Q_DISABLE_COPY_MOVE(PrintServer)

    [[nodiscard]] bool connect();

    /** A request with what every request says; about this queue, or about the server where it is empty. */
    [[nodiscard]] static IppMessage newRequest(ipp_op_t operation, const QString& queue = QString());
    /** Asks and reads the answer; null where there is none. An answer may be a refusal, see isSuccess. */
    [[nodiscard]] IppMessage ask(const IppMessage& request, const QByteArray& resource);
    [[nodiscard]] bool isSuccess(const IppMessage& answer);

    // A request with a document behind it, whose length is not known before.
    [[nodiscard]] bool beginDocument(const IppMessage& request, const QByteArray& resource);
    [[nodiscard]] bool sendDocument(const QByteArray& bytes);
    [[nodiscard]] IppMessage endDocument();

    [[nodiscard]] const QString& error() const { return m_error; }
    /** What the server was asked with POST for a queue. */
    [[nodiscard]] static QByteArray resourceOf(const QString& queue) { return "/printers/" + queue.toUtf8(); }

private:
    static int goOn(http_t* connection, void* server);
    static ssize_t readAnswer(void* server, ipp_uchar_t* buffer, size_t length);

    [[nodiscard]] bool isOver() const;
    bool reconnect();
    bool send(const IppMessage& request, const QByteArray& resource, size_t length);
    http_status_t receiveStatus();
    IppMessage receive();
    bool fail(const QString& text = QString());

    std::unique_ptr<http_t, CupsFree> m_connection;
    QElapsedTimer m_clock;
    int m_milliseconds;
    const std::atomic_bool* m_interrupt;
    QElapsedTimer m_answer;
    QString m_error;
};
