#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <atomic>
#include <memory>

/** A printer for slips; openPrinter() takes its name. */
struct SlipPrinter
{
    QString name;
    bool isDefault = false;
};

/**
 * Sends one slip at a time to a printer: open, write any number of times, close. The bytes are sent unchanged. The
 * caller owns the spooler; the destructor drops an open job.
 *
 * A failed call returns false, and errorText() has the reason. After a failed write all further writes of the job fail
 * without a new reason, and close() drops the job, so that no half slip is printed.
 */
class SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(SlipSpooler)

public:
    SlipSpooler() = default;
    virtual ~SlipSpooler() = default;
    Q_DISABLE_COPY_MOVE(SlipSpooler)

    /** A spooler for the folder in ZAVEL_SPOOL_DIR if it is set, or else for the print server. */
    [[nodiscard]] static std::unique_ptr<SlipSpooler> create();

    /**
     * The availablePrinters() of a new spooler, for forms: it waits at most two seconds, even if the server or its name
     * lookup is slow. Empty if there was no answer in time.
     */
    [[nodiscard]] static QList<SlipPrinter> listPrinters();
    /** True if all printers share one queue; otherwise each printer has its own. */
    [[nodiscard]] static bool hasOneLine();

    /**
     * The mark of the next job in the print queue, in addition to its title, so that a later program run can find it.
     */
    void setMark(const QString& mark) { m_mark = mark; }
    /** While the flag is set, waits for the print server end. The caller keeps it alive. */
    void setInterrupt(const std::atomic_bool* interrupt) { m_interrupt = interrupt; }

    /** Starts a job with this title. False if the printer is unknown or cannot be reached; then there is no job. */
    [[nodiscard]] bool openPrinter(const QString& printerName, const QString& title);
    [[nodiscard]] bool write(const QByteArray& bytes);
    /** Sends the job. Afterwards no job is open, even if it failed. */
    [[nodiscard]] bool close();
    [[nodiscard]] bool isOpen() const { return m_state != State::Closed; }

    /** The state of a job. Taken: in the queue or printing. */
    enum class Fate { NoAnswer, NotThere, Taken, Printed, GivenBack };
    /** Identifies the current or last job for fateOf(); empty if there was none. */
    [[nodiscard]] virtual QString reference() const = 0;
    /** The state of a sent job; for GivenBack, errorText() has the reason. */
    [[nodiscard]] virtual Fate fateOf(const QString& mark, const QString& reference) = 0;
    /**
     * The same for a job that an ended program was sending; the reference may be empty. A job that was only started is
     * cancelled and reported as NotThere.
     */
    [[nodiscard]] virtual Fate findLeftJob(const QString& mark, const QString& reference) = 0;

    /** Empty, with a reason in errorText(), if the printers cannot be listed. */
    [[nodiscard]] virtual QList<SlipPrinter> availablePrinters() = 0;

    /** Why the last call failed; empty after a success. */
    [[nodiscard]] const QString& errorText() const { return m_errorText; }

protected:
    virtual bool startJob(const QString& printerName, const QString& title) = 0;
    virtual bool sendBytes(const QByteArray& bytes) = 0;
    virtual bool finishJob() = 0;
    /** Cancels a started job after an error; must do nothing if there is none. */
    virtual void dropJob() = 0;

    /** Stores the error text and returns false. */
    bool fail(const QString& errorText);
    void clearError() { m_errorText.clear(); }
    [[nodiscard]] const QString& mark() const { return m_mark; }
    [[nodiscard]] const std::atomic_bool* interrupt() const { return m_interrupt; }

private:
    enum class State { Closed, Open, Broken };

    State m_state = State::Closed;
    QString m_errorText;
    QString m_mark;
    const std::atomic_bool* m_interrupt = nullptr;
};
