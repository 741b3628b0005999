#include "pos/printing/spooler/PrintServer.h"

#include <cups/cups.h>

#include <cerrno>
#include <cstring>

namespace
{
constexpr int connectMilliseconds = 5000;
constexpr int answerMilliseconds = 10000;
/** The longest wait before the interrupt is checked again. */
constexpr double waitSeconds = 0.2;
constexpr size_t unknownLength = 0;

const char* neverAsk(const char*, http_t*, const char*, const char*, void*) { return nullptr; }
} // namespace

PrintServer::PrintServer(int milliseconds, const std::atomic_bool* interrupt)
    : m_milliseconds(milliseconds), m_interrupt(interrupt)
{
    m_clock.start();
    m_answer.start();
}

bool PrintServer::isOver() const
{
    return m_clock.hasExpired(m_milliseconds) || m_answer.hasExpired(answerMilliseconds) ||
           (m_interrupt && *m_interrupt);
}

int PrintServer::goOn(http_t*, void* server) { return static_cast<PrintServer*>(server)->isOver() ? 0 : 1; }

bool PrintServer::fail(const QString& text)
{
    const int reason = m_connection ? httpError(m_connection.get()) : errno;
    m_error = !text.isEmpty() ? text : QString::fromLocal8Bit(std::strerror(reason ? reason : ETIMEDOUT));
    return false;
}

bool PrintServer::connect()
{
    // The library caches the server's name per thread, but the settings may have changed.
    cupsSetServer(nullptr);
    // There is nobody to enter a password, and the default would ask on the terminal.
    cupsSetPasswordCB2(neverAsk, nullptr);
    constexpr int notYet = 0;
    m_connection.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, notYet, nullptr));
    if (!m_connection)
        return fail(QString::fromUtf8(cupsLastErrorString()));
    httpSetTimeout(m_connection.get(), waitSeconds, goOn, this);
    return reconnect();
}

bool PrintServer::reconnect()
{
    m_answer.restart();
    const int left = int(qBound(qint64(1), m_milliseconds - m_clock.elapsed(), qint64(connectMilliseconds)));
    return httpReconnect2(m_connection.get(), left, nullptr) == 0 || fail();
}

IppMessage PrintServer::newRequest(ipp_op_t operation, const QString& queue)
{
    IppMessage request(ippNewRequest(operation));
    char uri[HTTP_MAX_URI];
    const QByteArray resource = queue.isEmpty() ? QByteArray("/") : resourceOf(queue);
    httpAssembleURI(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", ippPort(),
                    resource.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

bool PrintServer::send(const IppMessage& request, const QByteArray& resource, size_t length)
{
    m_answer.restart();
    http_t* connection = m_connection.get();
    httpClearFields(connection);
    httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    if (httpGetAuthString(connection))
        httpSetField(connection, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(connection));
    httpSetLength(connection, length);
    if (httpPost(connection, resource.constData()) != 0)
        return fail();
    ippSetState(request.get(), IPP_STATE_IDLE);
    for (;;) {
        const ipp_state_t state = ippWrite(connection, request.get());
        if (state == IPP_STATE_DATA)
            return httpFlushWrite(connection) >= 0 || fail();
        if (state == IPP_STATE_ERROR || isOver())
            return fail();
    }
}

http_status_t PrintServer::receiveStatus()
{
    m_answer.restart();
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE && !isOver())
        status = httpUpdate(m_connection.get());
    return status;
}

ssize_t PrintServer::readAnswer(void* server, ipp_uchar_t* buffer, size_t length)
{
    auto* self = static_cast<PrintServer*>(server);
    size_t read = 0;
    while (read < length) {
        if (self->isOver())
            return -1;
        const ssize_t count =
            httpRead2(self->m_connection.get(), reinterpret_cast<char*>(buffer) + read, length - read);
        if (count <= 0)
            break;
        read += size_t(count);
    }
    return ssize_t(read);
}

IppMessage PrintServer::receive()
{
    IppMessage answer(ippNew());
    for (;;) {
        const ipp_state_t state = ippReadIO(this, readAnswer, 1, nullptr, answer.get());
        if (state == IPP_STATE_DATA)
            break;
        if (state == IPP_STATE_ERROR || isOver()) {
            fail();
            return nullptr;
        }
    }
    httpFlush(m_connection.get());
    return answer;
}

IppMessage PrintServer::ask(const IppMessage& request, const QByteArray& resource)
{
    // Again if the server asks for authentication or encryption.
    for (int attempt = 0; attempt < 3; ++attempt) {
        if (!send(request, resource, ippLength(request.get())))
            return nullptr;
        const http_status_t status = receiveStatus();
        if (status == HTTP_STATUS_OK)
            return receive();
        if (status <= HTTP_STATUS_CONTINUE) {
            fail();
            return nullptr;
        }
        httpFlush(m_connection.get());
        if (status == HTTP_STATUS_UNAUTHORIZED) {
            if (cupsDoAuthentication(m_connection.get(), "POST", resource.constData()) != 0 || !reconnect())
                break;
        } else if (status == HTTP_STATUS_UPGRADE_REQUIRED) {
            if (!reconnect() || httpEncryption(m_connection.get(), HTTP_ENCRYPTION_REQUIRED) != 0)
                break;
        } else {
            fail(QString::fromUtf8(httpStatus(status)));
            return nullptr;
        }
    }
    fail(QString::fromUtf8(httpStatus(HTTP_STATUS_UNAUTHORIZED)));
    return nullptr;
}

bool PrintServer::isSuccess(const IppMessage& answer)
{
    if (!answer)
        return false;
    const ipp_status_t status = ippGetStatusCode(answer.get());
    if (status >= IPP_STATUS_OK && status < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return true;
    ipp_attribute_t* text = ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT);
    return fail(QString::fromUtf8(text ? ippGetString(text, 0, nullptr) : ippErrorString(status)));
}

bool PrintServer::beginDocument(const IppMessage& request, const QByteArray& resource)
{
    return send(request, resource, unknownLength);
}

bool PrintServer::sendDocument(const QByteArray& bytes)
{
    m_answer.restart();
    // Flush now, so that a lost server is noticed here, where the error is reported, and not when closing.
    return (httpWrite2(m_connection.get(), bytes.constData(), size_t(bytes.size())) >= 0 &&
            httpFlushWrite(m_connection.get()) >= 0) ||
           fail();
}

IppMessage PrintServer::endDocument()
{
    m_answer.restart();
    if (httpWrite2(m_connection.get(), "", 0) < 0) {
        fail();
        return nullptr;
    }
    const http_status_t status = receiveStatus();
    if (status == HTTP_STATUS_OK)
        return receive();
    fail(status > HTTP_STATUS_CONTINUE ? QString::fromUtf8(httpStatus(status)) : QString());
    return nullptr;
}
