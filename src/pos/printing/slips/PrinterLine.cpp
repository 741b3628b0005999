#include "pos/printing/slips/PrinterLine.h"

#include "pos/printing/slips/SlipArchive.h"

#include <QCoreApplication>

#include <chrono>
#include <thread>

namespace
{
/** How long the till waits for a verdict; a slower printer counts as late. */
constexpr int lateMilliseconds = 2000;
constexpr auto pause = std::chrono::milliseconds(1000);
/** The state of a job is asked for after a second and then less and less often, for about ten minutes. */
constexpr int mostQuestions = 40;
constexpr int longestPause = 20;
constexpr int maxQuestions = 50;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(SlipQueue)

public:
    static QString unknown() { return tr("It is not known whether it was printed: the print server does not answer."); }
};
} // namespace

PrinterLine::PrinterLine(std::shared_ptr<SlipDesk> desk, Listener listener)
    : m_desk(std::move(desk)), m_listener(std::move(listener))
{}

void PrinterLine::start()
{
    std::thread([self = shared_from_this()] {
        self->run();
        self->m_hasEnded = true;
    }).detach();
}

void PrinterLine::put(const Ticket& ticket)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    ++m_open;
    m_queue.push_back(ticket);
    // A new slip must not wait for questions about earlier ones.
    if (m_isAsking)
        m_interrupt = true;
    m_work.notify_one();
}

void PrinterLine::stop()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_isStopped = true;
    m_interrupt = true;
    m_work.notify_one();
}

PrinterLine::Ticket PrinterLine::next()
{
    std::unique_lock<std::mutex> guard(m_mutex);
    m_isAsking = false;
    const auto hasWork = [this] { return m_isStopped || !m_queue.empty(); };
    if (m_questions.empty())
        m_work.wait(guard, hasWork);
    else
        m_work.wait_for(guard, pause, hasWork);
    if (m_isStopped)
        return nullptr;
    m_interrupt = false;
    m_isAsking = m_queue.empty();
    if (m_queue.empty())
        return nullptr;
    const Ticket ticket = m_queue.front();
    m_queue.pop_front();
    return ticket;
}

void PrinterLine::run()
{
    while (!m_isStopped) {
        const Ticket ticket = next();
        if (ticket && ticket->isLeft)
            askLater(ticket, 0);
        else if (ticket)
            handOver(ticket);
        else if (!m_isStopped)
            askWhatIsDue();
    }
}

std::unique_ptr<SlipSpooler> PrinterLine::newSpooler(const QString& mark) const
{
    auto spooler = SlipSpooler::create();
    spooler->setMark(mark);
    spooler->setInterrupt(&m_interrupt);
    return spooler;
}

void PrinterLine::handOver(const Ticket& ticket)
{
    using Kind = SlipQueue::Verdict::Kind;
    const KeptSlip& slip = ticket->slip;
    QElapsedTimer clock;
    clock.start();
    SlipArchive::instance()->begin(slip.id, QString());
    const auto spooler = newSpooler(slip.id);
    const auto finish = [&](KeptSlip::State state, Kind kind, const QString& reason) {
        // Interrupted by the end of the program: it stays waiting, and the next start asks for its state.
        if (m_isStopped && state != KeptSlip::Printed)
            return;
        m_isLate = clock.hasExpired(lateMilliseconds);
        settle(ticket, state, kind, reason);
    };
    if (!spooler->openPrinter(slip.printer, slip.title)) {
        const bool hasNone = ticket->withoutPrinter;
        finish(hasNone ? KeptSlip::Unsent : KeptSlip::Failed, hasNone ? Kind::Unsent : Kind::NotOpened,
               spooler->errorText());
        return;
    }
    ticket->reference = spooler->reference();
    SlipArchive::instance()->begin(slip.id, ticket->reference);
    const bool isWritten = ticket->bytes.isEmpty() || spooler->write(ticket->bytes);
    const QString reason = spooler->errorText();
    // If it fails only here, the slip may still have been printed; the user has to look at the printer.
    const bool isTaken = spooler->close();
    if (!isWritten)
        finish(KeptSlip::Failed, Kind::NotWritten, reason);
    else if (!isTaken)
        finish(KeptSlip::GivenBack, Kind::GivenBack, spooler->errorText());
    else
        finish(KeptSlip::Printed, Kind::Printed, QString());
    if (isTaken && !ticket->bytes.isEmpty())
        askLater(ticket, 0);
}

void PrinterLine::settle(const Ticket& ticket, KeptSlip::State state, SlipQueue::Verdict::Kind kind,
                         const QString& reason)
{
    SlipArchive::instance()->settle(ticket->slip.id, state, reason);
    --m_open;
    {
        const std::lock_guard<std::mutex> guard(m_desk->mutex);
        ticket->slip.state = state;
        ticket->slip.reason = reason;
        ticket->verdict = {kind, reason};
        ticket->isSettled = true;
    }
    m_desk->news.notify_all();
    m_listener.settled(ticket);
}

void PrinterLine::askLater(const Ticket& ticket, int asked)
{
    if (asked > mostQuestions)
        return;
    m_questions.push_back({ticket, QDeadlineTimer(qMin(asked, longestPause) * 1000 + 1), asked});
    if (m_questions.size() > maxQuestions && !m_questions.front().ticket->isLeft)
        m_questions.pop_front();
}

void PrinterLine::askWhatIsDue()
{
    for (auto question = m_questions.begin(); question != m_questions.end(); ++question) {
        if (!question->due.hasExpired())
            continue;
        const Question due = *question;
        m_questions.erase(question);
        if (due.ticket->isLeft)
            askForLeft(due);
        else
            askForTaken(due);
        return;
    }
}

void PrinterLine::askForLeft(const Question& question)
{
    using Fate = SlipSpooler::Fate;
    using Kind = SlipQueue::Verdict::Kind;
    const Ticket& ticket = question.ticket;
    const auto spooler = newSpooler(ticket->slip.id);
    const bool isOld = SlipQueue::isTooOld(ticket->slip);
    switch (spooler->findLeftJob(ticket->slip.id, ticket->reference)) {
    case Fate::NoAnswer:
        if (isOld)
            settle(ticket, KeptSlip::Failed, Kind::NotOpened, Words::unknown());
        else
            askLater(ticket, qMin(question.asked + 1, 5));
        break;
    case Fate::NotThere:
        ticket->isLeft = false;
        if (isOld)
            settle(ticket, KeptSlip::Failed, Kind::NotOpened, SlipQueue::endedBefore());
        else
            handOver(ticket);
        break;
    case Fate::Taken:
    case Fate::Printed:
        settle(ticket, KeptSlip::Printed, Kind::Printed, QString());
        break;
    case Fate::GivenBack:
        settle(ticket, KeptSlip::GivenBack, Kind::GivenBack, spooler->errorText());
        break;
    }
}

void PrinterLine::askForTaken(const Question& question)
{
    const Ticket& ticket = question.ticket;
    const auto spooler = newSpooler(ticket->slip.id);
    switch (spooler->fateOf(ticket->slip.id, ticket->reference)) {
    case SlipSpooler::Fate::NoAnswer:
    case SlipSpooler::Fate::Taken:
        askLater(ticket, question.asked + 1);
        break;
    case SlipSpooler::Fate::NotThere:
    case SlipSpooler::Fate::Printed:
        break;
    case SlipSpooler::Fate::GivenBack: {
        KeptSlip slip = ticket->slip;
        slip.state = KeptSlip::GivenBack;
        slip.reason = spooler->errorText();
        SlipArchive::instance()->settle(slip.id, slip.state, slip.reason);
        m_listener.givenBack(slip);
        break;
    }
    }
}
