#pragma once

#include "pos/printing/slips/SlipTicket.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QDeadlineTimer>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>

/**
 * Sends the slips of one printer one after the other, on its own thread. Between slips it asks the print server about
 * the slips that it accepted earlier, and about those that an ended program left.
 */
class PrinterLine : public std::enable_shared_from_this<PrinterLine>
{
public:
    using Ticket = std::shared_ptr<SlipTicket>;
    /** Called on the line's thread: when a ticket has its verdict, or the print server gave a slip back. */
    struct Listener
    {
        std::function<void(const Ticket&)> settled;
        std::function<void(const KeptSlip&)> givenBack;
    };

    PrinterLine(std::shared_ptr<SlipDesk> desk, Listener listener);
    /** Starts the thread, which keeps this object alive until it ends. */
    void start();

    void put(const Ticket& ticket);
    /** True if a slip is waiting or the last one took too long, so that the till should not wait for another one. */
    [[nodiscard]] bool isBehind() const { return m_open > 0 || m_isLate; }
    /** Interrupts the current slip, which stays waiting; the thread ends soon. */
    void stop();
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

private:
    /** An earlier slip whose state the print server must be asked for. */
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
    /** Ends a wait for the print server. */
    std::atomic_bool m_interrupt{false};
    std::atomic_bool m_isAsking{false};
    // Used only by the thread.
    std::deque<Question> m_questions;
};
