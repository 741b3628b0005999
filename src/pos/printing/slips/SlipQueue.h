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
 * Sends slips to the printers, with a thread per printer, so that selling does not wait for a printer. Slips of one
 * printer keep their order. Call the public functions on the GUI thread.
 */
class SlipQueue final : public QObject
{
    Q_OBJECT

public:
    /** A slip with all its bytes, including copies and cuts. */
    struct Job
    {
        SlipPurpose purpose;
        QString printer;
        QString title;
        QByteArray bytes;
    };
    /** What is known about a job when the till continues. */
    struct Verdict
    {
        enum Kind { Printed, OnItsWay, NotOpened, NotWritten, GivenBack, Unsent };

        Kind kind = OnItsWay;
        QString reason;
        /** True also if the result is not known yet; a later failure is reported later. */
        [[nodiscard]] bool isGood() const { return kind != NotOpened && kind != NotWritten; }
    };

    /** While an object exists, all jobs together wait for their verdicts no longer than a single job does. */
    class Patience
    {
    public:
        Patience();
        ~Patience();
        Q_DISABLE_COPY_MOVE(Patience)
    };

    /** Created on first use and never destroyed. Its threads end with the application. */
    static SlipQueue* instance();

    /**
     * Saves the jobs, queues them all and waits for their verdicts together, at most two seconds and without processing
     * events. It does not wait for a printer that is behind.
     */
    [[nodiscard]] QList<Verdict> handOver(const QList<Job>& jobs);
    /**
     * Prints a kept slip again on this printer, with a first line of "COPY n" and the time. Failures are shown in a
     * box, as for any slip. The copy becomes a kept slip, too.
     */
    bool printAgain(const QString& id, const QString& printer);
    /** Shows a box for a bad verdict; returns whether it was good. */
    static bool tell(const Verdict& verdict, const Job& job);

    /** The printer name of each waiting slip; may contain duplicates. */
    [[nodiscard]] QStringList waitingPrinters() const;
    /** Continues the slips of ended programs; those that are too old fail. */
    void takeOver();
    /** True after a quarter of an hour: a kitchen must not cook yesterday's orders. */
    [[nodiscard]] static bool isTooOld(const KeptSlip& slip);
    /** The reason for a slip that is too old. */
    [[nodiscard]] static QString endedBefore();

signals:
    void waitingChanged();
    /** A slip was not printed after the till had continued, or the print server gave one back. */
    void failedLater(const KeptSlip& slip);
    /** A slip is only kept and shown, because no printer was chosen yet. */
    void unsent(const KeptSlip& slip);

private:
    SlipQueue();
    ~SlipQueue() override;

    using Ticket = std::shared_ptr<SlipTicket>;

    PrinterLine* lineOf(const QString& printer);
    QList<Verdict> handOver(const QList<Job>& jobs, const KeptSlip& original);
    /** False if a verdict did not come in time. */
    bool waitFor(const QList<Ticket>& tickets);
    void adoptOrphans();
    void onSettled(const Ticket& ticket);
    void onGivenBack(const KeptSlip& slip);
    void stop();

    std::shared_ptr<SlipDesk> m_desk;
    QHash<QString, std::shared_ptr<PrinterLine>> m_lines;
    QList<Ticket> m_waiting;
};
