#include "pos/printing/printer/CupsSlipSpooler.h"

#include <cups/cups.h>

#include <cerrno>
#include <cstring>

namespace
{
constexpr int connectMilliseconds = 5000;
constexpr double answerSeconds = 10.0;

struct CupsFree
{
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
    void operator()(cups_dinfo_t* queueInfo) const { cupsFreeDestInfo(queueInfo); }
};

template <class Object>
using CupsPtr = std::unique_ptr<Object, CupsFree>;

CupsPtr<http_t> connectToServer()
{
    CupsPtr<http_t> server(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, connectMilliseconds, nullptr));
    if (server) {
        const auto giveUp = [](http_t*, void*) { return 0; };
        httpSetTimeout(server.get(), answerSeconds, giveUp, nullptr);
    }
    return server;
}

bool isSuccess(ipp_status_t status) { return status >= IPP_STATUS_OK && status < IPP_STATUS_REDIRECTION_OTHER_SITE; }

int addPrinter(void* list, unsigned flags, cups_dest_t* queue)
{
    constexpr int goOn = 1;
    // An instance is a queue once more with options of its own, which say nothing to a raw document.
    if (!(flags & CUPS_DEST_FLAGS_REMOVED) && !queue->instance)
        static_cast<QList<SlipPrinter>*>(list)->append({QString::fromUtf8(queue->name), queue->is_default != 0});
    return goOn;
}
} // namespace

struct CupsSlipSpooler::Job
{
    CupsPtr<http_t> server;
    CupsPtr<cups_dest_t> queue;
    CupsPtr<cups_dinfo_t> queueInfo;
    int id = 0;
    bool hasContent = false;
};

CupsSlipSpooler::CupsSlipSpooler() = default;

CupsSlipSpooler::~CupsSlipSpooler() { dropJob(); }

bool CupsSlipSpooler::startJob(const QString& printerName, const QString& title)
{
    m_job = std::make_unique<Job>();
    m_job->server = connectToServer();
    http_t* server = m_job->server.get();
    if (!server)
        return failWithServerText(tr("The print server does not answer"));

    m_job->queue.reset(cupsGetNamedDest(server, printerName.toUtf8().constData(), nullptr));
    cups_dest_t* queue = m_job->queue.get();
    if (!queue)
        return failWithServerText(tr("The printer %1 cannot be found").arg(printerName));
    m_job->queueInfo.reset(cupsCopyDestInfo(server, queue));
    cups_dinfo_t* info = m_job->queueInfo.get();
    if (!info)
        return failWithServerText(tr("The printer %1 tells nothing about itself").arg(printerName));

    // The queue's own options stay out: copies and cutting are the slip's, not the spooler's.
    const QByteArray name = title.toUtf8();
    if (!isSuccess(cupsCreateDestJob(server, queue, info, &m_job->id, name.constData(), 0, nullptr)))
        return failWithServerText(tr("The printer %1 takes no jobs").arg(printerName));
    constexpr int lastDocument = 1;
    if (cupsStartDestDocument(server, queue, info, m_job->id, name.constData(), CUPS_FORMAT_RAW, 0, nullptr,
                              lastDocument) != HTTP_STATUS_CONTINUE)
        return failWithServerText(tr("The printer %1 refuses the slip").arg(printerName));
    return true;
}

bool CupsSlipSpooler::sendBytes(const QByteArray& bytes)
{
    http_t* server = m_job->server.get();
    m_job->hasContent = true;
    const auto size = static_cast<size_t>(bytes.size());
    // Flushed at once: a server that is gone shows here, where it is reported, and not first on closing.
    if (cupsWriteRequestData(server, bytes.constData(), size) == HTTP_STATUS_CONTINUE && httpFlushWrite(server) >= 0)
        return true;
    const int reason = httpError(server);
    const QString what = tr("The connection to the print server is lost");
    return fail(reason ? what + ": " + QString::fromLocal8Bit(std::strerror(reason)) : what);
}

bool CupsSlipSpooler::finishJob()
{
    // The server refuses a document without content; nothing to print is no failure, so the job is taken back.
    if (!m_job->hasContent) {
        dropJob();
        return true;
    }
    if (!isSuccess(cupsFinishDestDocument(m_job->server.get(), m_job->queue.get(), m_job->queueInfo.get())))
        return failWithServerText(tr("The print server did not take the slip"));
    m_job.reset();
    return true;
}

void CupsSlipSpooler::dropJob()
{
    if (!m_job)
        return;
    if (m_job->id > 0) {
        // The old connection stands in the middle of a document; the server takes orders on a new one only.
        m_job->server = connectToServer();
        if (m_job->server)
            cupsCancelDestJob(m_job->server.get(), m_job->queue.get(), m_job->id);
    }
    m_job.reset();
}

QList<SlipPrinter> CupsSlipSpooler::availablePrinters()
{
    clearError();
    QList<SlipPrinter> printers;
    if (!connectToServer()) {
        failWithServerText(tr("The print server does not answer"));
        return printers;
    }
    // The server's own queues only: looking around the network for others takes time, and none of them is raw.
    constexpr int noDiscovery = 0;
    if (!cupsEnumDests(CUPS_DEST_FLAGS_NONE, noDiscovery, nullptr, 0, CUPS_PRINTER_DISCOVERED, addPrinter, &printers))
        failWithServerText(tr("The print server does not list its printers"));
    return printers;
}

bool CupsSlipSpooler::failWithServerText(const QString& what)
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    return fail(reason.isEmpty() ? what : what + ": " + reason);
}
