#include "pos/printing/spooler/CupsSlipSpooler.h"

#include "pos/printing/spooler/PrintServer.h"

#include <cups/cups.h>

#include <QDebug>
#include <QHash>

namespace
{
constexpr int jobMilliseconds = 20000;
constexpr int questionMilliseconds = 10000;
/** Short, because a form waits for it. */
constexpr int listMilliseconds = 2000;

void addText(const IppMessage& message, ipp_tag_t group, ipp_tag_t kind, const char* name, const QString& text)
{
    ippAddString(message.get(), group, kind, name, nullptr, text.toUtf8().constData());
}

void wantAttributes(const IppMessage& request, const QList<const char*>& names)
{
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", names.size(), nullptr,
                  names.toVector().constData());
}

IppMessage requestAboutJob(ipp_op_t operation, const QString& queue, int job)
{
    IppMessage request = PrintServer::newRequest(operation, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
    return request;
}

/** The attributes of one job or printer in an answer. */
using Attributes = QHash<QString, ipp_attribute_t*>;

QList<Attributes> objectsIn(const IppMessage& answer, ipp_tag_t group)
{
    QList<Attributes> objects;
    bool isInside = false;
    for (ipp_attribute_t* attribute = ippFirstAttribute(answer.get()); attribute;
         attribute = ippNextAttribute(answer.get())) {
        const bool belongs = ippGetGroupTag(attribute) == group && ippGetName(attribute);
        if (belongs && !isInside)
            objects.append(Attributes());
        if (belongs)
            objects.last().insert(ippGetName(attribute), attribute);
        isInside = belongs;
    }
    return objects;
}

int number(const Attributes& object, const char* name)
{
    ipp_attribute_t* attribute = object.value(name);
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

QString text(const Attributes& object, const char* name)
{
    ipp_attribute_t* attribute = object.value(name);
    return attribute ? QString::fromUtf8(ippGetString(attribute, 0, nullptr)) : QString();
}

const QList<const char*>& wantedOfJobs()
{
    static const QList<const char*> names{"job-id",           "job-state",           "job-billing",
                                          "job-k-octets",     "number-of-documents", "job-printer-state-message",
                                          "job-state-reasons"};
    return names;
}

bool hasDocument(const Attributes& job)
{
    return number(job, "number-of-documents") > 0 || number(job, "job-k-octets") > 0;
}

SlipSpooler::Fate fateIn(const Attributes& job, QString* reason)
{
    switch (number(job, "job-state")) {
    case IPP_JSTATE_COMPLETED:
        return SlipSpooler::Fate::Printed;
    case IPP_JSTATE_CANCELED:
    case IPP_JSTATE_ABORTED:
        *reason = text(job, "job-printer-state-message");
        if (reason->isEmpty())
            *reason = text(job, "job-state-reasons");
        return SlipSpooler::Fate::GivenBack;
    default:
        return SlipSpooler::Fate::Taken;
    }
}
} // namespace

struct CupsSlipSpooler::Job
{
    explicit Job(const std::atomic_bool* interrupt) : server(jobMilliseconds, interrupt) {}

    PrintServer server;
    QString queue;
    int id = 0;
    bool hasContent = false;
};

CupsSlipSpooler::CupsSlipSpooler() = default;

CupsSlipSpooler::~CupsSlipSpooler() { dropJob(); }

bool CupsSlipSpooler::startJob(const QString& printerName, const QString& title)
{
    m_reference.clear();
    m_job = std::make_unique<Job>(interrupt());
    m_job->queue = printerName;
    PrintServer& server = m_job->server;
    if (!server.connect())
        return failWithServerText(tr("The print server does not answer"), server.error());
    if (!createJob(title))
        return false;
    m_reference = QString::number(m_job->id);

    const IppMessage request = requestAboutJob(IPP_OP_SEND_DOCUMENT, printerName, m_job->id);
    addText(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", title);
    addText(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", CUPS_FORMAT_RAW);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", 1);
    if (!server.beginDocument(request, PrintServer::resourceOf(printerName)))
        return failWithServerText(tr("The printer %1 refuses the slip").arg(printerName), server.error());
    return true;
}

bool CupsSlipSpooler::createJob(const QString& title)
{
    // The queue's own options are not used: the slip contains its copies and cuts.
    const IppMessage request = PrintServer::newRequest(IPP_OP_CREATE_JOB, m_job->queue);
    addText(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", title);
    if (!mark().isEmpty())
        addText(request, IPP_TAG_JOB, IPP_TAG_TEXT, "job-billing", mark());
    PrintServer& server = m_job->server;
    const IppMessage answer = server.ask(request, PrintServer::resourceOf(m_job->queue));
    if (!answer)
        return failWithServerText(tr("The print server does not answer"), server.error());
    if (!server.isSuccess(answer)) {
        const bool isUnknown = ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND;
        const QString what = isUnknown ? tr("The printer %1 cannot be found") : tr("The printer %1 takes no jobs");
        return failWithServerText(what.arg(m_job->queue), server.error());
    }
    ipp_attribute_t* id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
    m_job->id = id ? ippGetInteger(id, 0) : 0;
    return true;
}

bool CupsSlipSpooler::sendBytes(const QByteArray& bytes)
{
    m_job->hasContent = true;
    return m_job->server.sendDocument(bytes) ||
           failWithServerText(tr("The connection to the print server is lost"), m_job->server.error());
}

bool CupsSlipSpooler::finishJob()
{
    // The server refuses a document without content. An empty slip is no failure, so cancel the job.
    if (!m_job->hasContent) {
        dropJob();
        m_reference.clear();
        return true;
    }
    if (!m_job->server.isSuccess(m_job->server.endDocument()))
        return failWithServerText(tr("The print server did not take the slip"), m_job->server.error());
    m_job.reset();
    return true;
}

void CupsSlipSpooler::dropJob()
{
    if (!m_job)
        return;
    const bool isInterrupted = interrupt() && *interrupt();
    if (m_job->id > 0 && !isInterrupted) {
        // The old connection is in the middle of a document, so use a new one.
        PrintServer server(questionMilliseconds, interrupt());
        // If this fails, the server aborts a job without a document by itself.
        if (server.connect() && !server.ask(requestAboutJob(IPP_OP_CANCEL_JOB, m_job->queue, m_job->id), "/jobs/"))
            qWarning().noquote() << server.error();
    }
    m_job.reset();
}

SlipSpooler::Fate CupsSlipSpooler::fateOf(const QString& mark, const QString& reference)
{
    clearError();
    PrintServer server(questionMilliseconds, interrupt());
    const IppMessage request = PrintServer::newRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", reference.toInt());
    wantAttributes(request, wantedOfJobs());
    IppMessage answer;
    if (server.connect())
        answer = server.ask(request, "/");
    if (!answer)
        return Fate::NoAnswer;
    const QList<Attributes> jobs = objectsIn(answer, IPP_TAG_JOB);
    // Job numbers restart if the server is set up again, so also compare the mark.
    if (jobs.isEmpty() || text(jobs.first(), "job-billing") != mark)
        return Fate::NotThere;
    QString reason;
    const Fate fate = fateIn(jobs.first(), &reason);
    fail(reason);
    return fate;
}

SlipSpooler::Fate CupsSlipSpooler::findLeftJob(const QString& mark, const QString& reference)
{
    Q_UNUSED(reference) // the program may have ended before it got the number
    clearError();
    PrintServer server(questionMilliseconds, interrupt());
    const IppMessage request = PrintServer::newRequest(IPP_OP_GET_JOBS);
    addText(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", "all");
    wantAttributes(request, wantedOfJobs());
    IppMessage answer;
    if (server.connect())
        answer = server.ask(request, "/");
    if (!server.isSuccess(answer))
        return Fate::NoAnswer;
    const QList<Attributes> jobs = objectsIn(answer, IPP_TAG_JOB);
    for (const Attributes& job : jobs) {
        if (text(job, "job-billing") != mark)
            continue;
        QString reason;
        const Fate fate = fateIn(job, &reason);
        if (fate == Fate::Printed || hasDocument(job)) {
            fail(reason);
            return fate;
        }
        // The job was created but never got its document. A job that has ended needs no cancel.
        const IppMessage cancel = PrintServer::newRequest(IPP_OP_CANCEL_JOB);
        ippAddInteger(cancel.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", number(job, "job-id"));
        if (fate == Fate::Taken && !server.isSuccess(server.ask(cancel, "/jobs/")))
            return Fate::NoAnswer;
    }
    return Fate::NotThere;
}

QList<SlipPrinter> CupsSlipSpooler::availablePrinters()
{
    clearError();
    QList<SlipPrinter> printers;
    PrintServer server(listMilliseconds, interrupt());
    if (!server.connect()) {
        failWithServerText(tr("The print server does not answer"), server.error());
        return printers;
    }
    // Only the server's own queues: searching the network takes time, and no queue found there is raw.
    const IppMessage request = PrintServer::newRequest(IPP_OP_CUPS_GET_PRINTERS);
    wantAttributes(request, {"printer-name"});
    const IppMessage answer = server.ask(request, "/");
    // A server without printers answers "not found".
    const bool hasNone = answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND;
    if (!hasNone && !server.isSuccess(answer)) {
        failWithServerText(tr("The print server does not list its printers"), server.error());
        return printers;
    }
    const IppMessage usual = server.ask(PrintServer::newRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    const QList<Attributes> defaults = usual ? objectsIn(usual, IPP_TAG_PRINTER) : QList<Attributes>();
    const QString defaultName = defaults.isEmpty() ? QString() : text(defaults.first(), "printer-name");
    const QList<Attributes> found = objectsIn(answer, IPP_TAG_PRINTER);
    for (const Attributes& printer : found) {
        const QString name = text(printer, "printer-name");
        printers.append({name, name == defaultName});
    }
    return printers;
}

bool CupsSlipSpooler::failWithServerText(const QString& what, const QString& reason)
{
    return fail(reason.isEmpty() ? what : what + ": " + reason);
}
