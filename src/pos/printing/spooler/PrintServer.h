#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <cups/http.h>
#include <cups/ipp.h>

#include <atomic>
#include <memory>

/** Frees a CUPS object; for std::unique_ptr. */
struct CupsFree
{
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};

using IppMessage = std::unique_ptr<ipp_t, CupsFree>;

/**
 * One connection to the print server for a few requests, with a time limit. The CUPS library's own calls reconnect and
 * retry for minutes if a server accepts the connection but does not answer. Here every wait ends with the time limit or
 * the interrupt. After a failed call error() has the reason.
 */
class PrintServer
{
public:
    /** The time limit for everything on this connection, in milliseconds. */
    explicit PrintServer(int milliseconds, const std::atomic_bool* interrupt = nullptr);
    Q_DISABLE_COPY_MOVE(PrintServer)

    [[nodiscard]] bool connect();

    /** A request with the common attributes, for this queue, or for the server if it is empty. */
    [[nodiscard]] static IppMessage newRequest(ipp_op_t operation, const QString& queue = QString());
    /** Sends the request and reads the answer; null if there is none. An answer may be a refusal, see isSuccess(). */
    [[nodiscard]] IppMessage ask(const IppMessage& request, const QByteArray& resource);
    [[nodiscard]] bool isSuccess(const IppMessage& answer);

    // A request followed by a document of unknown length.
    [[nodiscard]] bool beginDocument(const IppMessage& request, const QByteArray& resource);
    [[nodiscard]] bool sendDocument(const QByteArray& bytes);
    [[nodiscard]] IppMessage endDocument();

    [[nodiscard]] const QString& error() const { return m_error; }
    /** The resource path for POST requests to a queue. */
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
