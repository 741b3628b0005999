#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>

class PrinterLine;
class SlipTicket;
struct SlipDesk;

/**
 * Hands slips over to the printers, each printer in a thread of its own, so that selling never waits for paper. The
 * order within one printer is kept. All public calls come from the GUI thread.
 */
class SlipQueue final : public QObject
{
    Q_OBJECT

public:
    /** A slip with all its bytes, copies and cuts among them. */
    struct Job
    {
        SlipPurpose purpose;
        QString printer;
        QString title;
        QByteArray bytes;
    };
    /** What is known of a job when the till goes on. */
    struct Verdict
    {
        enum Kind { Printed, OnItsWay, NotOpened, NotWritten, GivenBack, Unsent };

        Kind kind = OnItsWay;
        QString reason;
        /** What later fails is told later. */
        [[nodiscard]] bool isGood() const { return kind != NotOpened && kind != NotWritten; }
    };

    /**
     * What is handed over while one of these lives waits for verdicts no longer than one job does, however many there
     * are.
     */
    class Patience
    {
    public:
        Patience();
        ~Patience();
        Q_DISABLE_COPY_MOVE(Patience)
    };

    /** Made on first use and never destroyed. Its threads end with the application. */
    static SlipQueue* instance();

    /**
     * Writes the jobs down, hands them all over and waits for their verdicts together, two seconds at most and without
     * serving events. A printer that is behind is not waited for.
     */
    [[nodiscard]] QList<Verdict> handOver(const QList<Job>& jobs);
    /**
     * Prints a kept slip once more, with the first line "COPY n" and the time, on this printer. What fails is told in a
     * box, as for any slip; the copy is a kept slip of its own.
     */
    bool printAgain(const QString& id, const QString& printer);
    /** Tells in a box what a bad verdict says; a good one is silent. Returns whether it was good. */
    static bool tell(const Verdict& verdict, const Job& job);

    /** The names of the printers that slips wait for, a name once a slip. */
    [[nodiscard]] QStringList waitingPrinters() const;
    /** Goes on with the slips of programs that are gone; too old ones fail. */
    void takeOver();
    /** A kitchen must not cook yesterday's orders: what a program left behind is printed within a quarter of an hour.
     */
    [[nodiscard]] static bool isTooOld(const KeptSlip& slip);
    /** Why a slip that is too old is not printed. */
    [[nodiscard]] static QString endedBefore();

signals:
    void waitingChanged();
    /** A slip that the till did not wait for was not printed, or the print server has given one back. */
    void failedLater(const KeptSlip& slip);
    /** Kept and shown only: nobody has chosen a printer yet. */
    void unsent(const KeptSlip& slip);

private:
    SlipQueue();
    ~SlipQueue() override;

    using Ticket = std::shared_ptr<SlipTicket>;

    PrinterLine* lineOf(const QString& printer);
    QList<Verdict> handOver(const QList<Job>& jobs, const KeptSlip& original);
    /** False where somebody waits for a verdict in vain. */
    bool waitFor(const QList<Ticket>& tickets);
    void adoptOrphans();
    void onSettled(const Ticket& ticket);
    void onGivenBack(const KeptSlip& slip);
    void stop();

    std::shared_ptr<SlipDesk> m_desk;
    QHash<QString, std::shared_ptr<PrinterLine>> m_lines;
    QList<Ticket> m_waiting;
};
