#pragma once

#include "pos/printing/slips/SlipTicket.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QDeadlineTimer>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>

/**
 * The slips of one printer, handed over one after the other by a thread of its own. Between slips it asks the print
 * server what became of those that it took a while ago, and of those that a program that is gone left behind.
 */
class PrinterLine : public std::enable_shared_from_this<PrinterLine>
{
public:
    using Ticket = std::shared_ptr<SlipTicket>;
    /** What the line tells, from its thread: that a ticket has its verdict, or that a slip was given back. */
    struct Listener
    {
        std::function<void(const Ticket&)> settled;
        std::function<void(const KeptSlip&)> givenBack;
    };

    PrinterLine(std::shared_ptr<SlipDesk> desk, Listener listener);
    /** Starts the thread, which keeps the line alive until it ends. */
    void start();

    void put(const Ticket& ticket);
    /** A slip waits here, or the last one took longer than a till waits: waiting for another one is in vain. */
    [[nodiscard]] bool isBehind() const { return m_open > 0 || m_isLate; }
    /** Gives up what it is at, which stays waiting; the thread ends soon. */
    void stop();
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

private:
    /** A slip of the past that the print server has to be asked about. */
    struct Question
    {
        Ticket ticket;
        QDeadlineTimer due;
        int asked = 0;
    };

    void run();
    [[nodiscard]] Ticket next();
    void handOver(const Ticket& ticket);
    void settle(const Ticket& ticket, KeptSlip::State state, SlipQueue::Verdict::Kind kind, const QString& reason);
    void askLater(const Ticket& ticket, int asked);
    void askWhatIsDue();
    void askForLeft(const Question& question);
    void askForTaken(const Question& question);
    [[nodiscard]] std::unique_ptr<SlipSpooler> newSpooler(const QString& mark) const;

    std::shared_ptr<SlipDesk> m_desk;
    Listener m_listener;
    std::mutex m_mutex;
    std::condition_variable m_work;
    std::deque<Ticket> m_queue;
    std::atomic_int m_open{0};
    std::atomic_bool m_isLate{false};
    std::atomic_bool m_isStopped{false};
    std::atomic_bool m_hasEnded{false};
    /** Ends the wait for the print server. */
    std::atomic_bool m_interrupt{false};
    std::atomic_bool m_isAsking{false};
    // Of the thread alone.
    std::deque<Question> m_questions;
};
