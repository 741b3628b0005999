#include "pos/printing/slips/SlipQueue.h"

#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"
#include "pos/printing/slips/PrinterLine.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipBox.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <thread>

namespace
{
constexpr auto patience = std::chrono::milliseconds(2000);
constexpr int minutesUntilOld = 15;
constexpr int adoptMilliseconds = 30 * 1000;
constexpr int pruneMilliseconds = 60 * 60 * 1000;

/** When the outermost Patience ends; without one, each job has its own time limit. */
struct SharedPatience
{
    int depth = 0;
    std::chrono::steady_clock::time_point end;
};

SharedPatience& sharedPatience()
{
    static SharedPatience shared;
    return shared;
}

QString currentUserName()
{
    const EntityUser* user = AppContext::instance()->currentUser();
    return user ? user->getUserName() : QString();
}

KeptSlip slipOf(const SlipQueue::Job& job)
{
    KeptSlip slip;
    slip.user = currentUserName();
    slip.kind = job.purpose.kind;
    slip.number = job.purpose.number;
    slip.place = job.purpose.place;
    slip.title = job.title;
    slip.printer = job.printer;
    slip.columns = job.purpose.columns;
    return slip;
}
} // namespace

SlipQueue::Patience::Patience()
{
    if (sharedPatience().depth++ == 0)
        sharedPatience().end = std::chrono::steady_clock::now() + patience;
}

SlipQueue::Patience::~Patience() { --sharedPatience().depth; }

SlipQueue* SlipQueue::instance()
{
    static auto* const queue = new SlipQueue;
    return queue;
}

SlipQueue::SlipQueue() : m_desk(std::make_shared<SlipDesk>())
{
    SlipArchive::instance();
    qAddPostRoutine([] { instance()->stop(); });
}

SlipQueue::~SlipQueue() = default;

bool SlipQueue::isTooOld(const KeptSlip& slip)
{
    return slip.at.addSecs(minutesUntilOld * 60) < QDateTime::currentDateTime();
}

QString SlipQueue::endedBefore() { return tr("not printed before the program ended"); }

PrinterLine* SlipQueue::lineOf(const QString& printer)
{
    std::shared_ptr<PrinterLine>& line = m_lines[SlipSpooler::hasOneLine() ? QString() : printer];
    if (!line) {
        const auto post = [this](auto work) { QMetaObject::invokeMethod(this, work, Qt::QueuedConnection); };
        PrinterLine::Listener listener;
        listener.settled = [this, post](const Ticket& ticket) { post([this, ticket] { onSettled(ticket); }); };
        listener.givenBack = [this, post](const KeptSlip& slip) { post([this, slip] { onGivenBack(slip); }); };
        line = std::make_shared<PrinterLine>(m_desk, listener);
        line->start();
    }
    return line.get();
}

QList<SlipQueue::Verdict> SlipQueue::handOver(const QList<Job>& jobs) { return handOver(jobs, KeptSlip()); }

QList<SlipQueue::Verdict> SlipQueue::handOver(const QList<Job>& jobs, const KeptSlip& original)
{
    QList<SlipArchive::Entry> entries;
    for (const Job& job : jobs) {
        KeptSlip slip = slipOf(job);
        slip.copy = original.copy;
        slip.copyOf = original.copyOf;
        entries.append({slip, job.bytes});
    }
    SlipArchive::instance()->add(entries);

    QList<Ticket> tickets;
    QList<Ticket> awaited;
    for (int i = 0; i < jobs.size(); ++i) {
        const auto ticket = std::make_shared<SlipTicket>();
        ticket->slip = entries[i].slip;
        ticket->bytes = entries[i].bytes;
        // With a folder instead of a print server there is no printer to choose, so errors are always shown.
        ticket->withoutPrinter = jobs[i].purpose.withoutPrinter && !SlipSpooler::hasOneLine();
        PrinterLine* line = lineOf(ticket->slip.printer);
        const bool isAwaited =
            !line->isBehind() || std::any_of(awaited.cbegin(), awaited.cend(), [&](const Ticket& earlier) {
                return earlier->slip.printer == ticket->slip.printer || SlipSpooler::hasOneLine();
            });
        if (isAwaited)
            awaited.append(ticket);
        tickets.append(ticket);
        m_waiting.append(ticket);
        line->put(ticket);
    }
    waitFor(awaited);

    QList<Verdict> verdicts;
    {
        const std::lock_guard<std::mutex> guard(m_desk->mutex);
        for (const Ticket& ticket : qAsConst(tickets)) {
            ticket->isAbandoned = !ticket->isSettled;
            verdicts.append(ticket->verdict);
            if (ticket->isSettled)
                m_waiting.removeOne(ticket);
        }
    }
    emit waitingChanged();
    return verdicts;
}

bool SlipQueue::waitFor(const QList<Ticket>& tickets)
{
    const auto end = sharedPatience().depth > 0 ? sharedPatience().end : std::chrono::steady_clock::now() + patience;
    std::unique_lock<std::mutex> guard(m_desk->mutex);
    return m_desk->news.wait_until(guard, end, [&tickets] {
        return std::all_of(tickets.cbegin(), tickets.cend(), [](const Ticket& ticket) { return ticket->isSettled; });
    });
}

void SlipQueue::onSettled(const Ticket& ticket)
{
    if (m_waiting.removeOne(ticket))
        emit waitingChanged();
    const KeptSlip& slip = ticket->slip;
    if (slip.state == KeptSlip::Printed)
        return;
    AppContext::log(QString("slip %1 (%2) for the printer %3 was not printed: %4")
                        .arg(slip.id, slip.title, slip.printer, slip.reason));
    if (slip.state == KeptSlip::Unsent)
        emit unsent(slip);
    else if (ticket->isAbandoned || slip.state == KeptSlip::GivenBack)
        emit failedLater(slip);
}

void SlipQueue::onGivenBack(const KeptSlip& slip)
{
    AppContext::log(QString("slip %1 (%2) was given back by the printer %3: %4")
                        .arg(slip.id, slip.title, slip.printer, slip.reason));
    emit failedLater(slip);
}

bool SlipQueue::tell(const Verdict& verdict, const Job& job)
{
    if (verdict.kind == Verdict::NotOpened)
        SlipBox::tell(job.purpose.standing,
                      QCoreApplication::translate("AppLinePrinter", "Error Opening Printer:") + job.printer);
    else if (verdict.kind == Verdict::NotWritten && !verdict.reason.isEmpty())
        SlipBox::tell(job.purpose.standing, verdict.reason);
    return verdict.isGood();
}

bool SlipQueue::printAgain(const QString& id, const QString& printer)
{
    const SlipArchive* archive = SlipArchive::instance();
    KeptSlip original = archive->slip(id);
    // A copy of a copy is made from the original, if it is still kept.
    const KeptSlip first = original.copyOf.isEmpty() ? KeptSlip() : archive->slip(original.copyOf);
    if (!first.id.isEmpty())
        original = first;
    const QByteArray bytes = archive->bytes(original.id);
    if (bytes.isEmpty()) {
        SlipBox::tell(QString(), tr("The slip cannot be read any more."));
        return false;
    }
    KeptSlip copy;
    copy.copy = archive->copies(original.id) + 1;
    copy.copyOf = original.id;
    const QString line =
        tr("COPY %1").arg(copy.copy) + "  " + QDateTime::currentDateTime().toString("dd-MM-yyyy hh:mm:ss");
    Job job;
    job.purpose.kind = original.kind;
    job.purpose.number = original.number;
    job.purpose.place = original.place;
    job.purpose.columns = original.columns;
    job.printer = printer;
    job.title = original.title;
    job.bytes = line.toUtf8() + '\n' + bytes;
    return tell(handOver({job}, copy).first(), job);
}

QStringList SlipQueue::waitingPrinters() const
{
    QStringList printers;
    for (const Ticket& ticket : m_waiting)
        printers.append(ticket->slip.printer);
    return printers;
}

void SlipQueue::takeOver()
{
    adoptOrphans();
    const auto every = [this](int milliseconds, auto work) {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, work);
        timer->start(milliseconds);
    };
    // Another program window may be killed while this one runs.
    every(adoptMilliseconds, [this] { adoptOrphans(); });
    every(pruneMilliseconds, [] { SlipArchive::instance()->prune(); });
}

void SlipQueue::adoptOrphans()
{
    const QList<SlipArchive::Orphan> orphans = SlipArchive::instance()->adopt();
    for (const SlipArchive::Orphan& orphan : orphans) {
        const auto ticket = std::make_shared<SlipTicket>();
        ticket->slip = orphan.slip;
        ticket->bytes = orphan.bytes;
        ticket->isLeft = orphan.begun;
        ticket->reference = orphan.reference;
        ticket->isAbandoned = true;
        if (isTooOld(orphan.slip) && !orphan.begun) {
            SlipArchive::instance()->settle(orphan.slip.id, KeptSlip::Failed, endedBefore());
            ticket->slip.state = KeptSlip::Failed;
            ticket->slip.reason = endedBefore();
            onSettled(ticket);
            continue;
        }
        m_waiting.append(ticket);
        lineOf(orphan.slip.printer)->put(ticket);
    }
    if (!orphans.isEmpty())
        emit waitingChanged();
}

void SlipQueue::stop()
{
    waitFor(m_waiting);
    for (const auto& line : qAsConst(m_lines))
        line->stop();
    // A wait for the print server ends within 0.2 seconds. A thread in a host name lookup is not waited for.
    QDeadlineTimer end(600);
    const auto isAtWork = [](const std::shared_ptr<PrinterLine>& line) { return !line->hasEnded(); };
    while (std::any_of(m_lines.cbegin(), m_lines.cend(), isAtWork) && !end.hasExpired())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    QCoreApplication::sendPostedEvents(this);
}
