#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <atomic>
#include <memory>

/** A printer that slips can go to, under the name by which openPrinter takes it. */
struct SlipPrinter
{
    QString name;
    bool isDefault = false;
};

/**
 * The way of one slip at a time to a printer: open, write any number of times, close. The bytes arrive as written;
 * nothing renders or paginates them. The caller owns the spooler; a job that is still open when it goes is dropped.
 *
 * A call that fails returns false and explains itself in errorText(). A job in which a write failed is broken: the
 * writes that follow fail too, without a new explanation, and close() drops the job, so that no half slip is printed.
 */
class SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(SlipSpooler)

public:
    SlipSpooler() = default;
    virtual ~SlipSpooler() = default;
    Q_DISABLE_COPY_MOVE(SlipSpooler)

    /** The folder that ZAVEL_SPOOL_DIR names, where it is set; the print server otherwise. */
    [[nodiscard]] static std::unique_ptr<SlipSpooler> create();

    /**
     * What availablePrinters() of a new spooler says, for forms: they wait two seconds at most, whatever is slow on the
     * way to the print server, its name included. Empty where no answer came in that time.
     */
    [[nodiscard]] static QList<SlipPrinter> listPrinters();
    /** Where slips go one by one, whichever printer they are for; otherwise each printer has a line of its own. */
    [[nodiscard]] static bool hasOneLine();

    /** The next job bears this mark in the print queue, beside its title, so that a later program finds it. */
    void setMark(const QString& mark) { m_mark = mark; }
    /** While the flag is set, waiting for the print server is given up. The caller keeps it alive. */
    void setInterrupt(const std::atomic_bool* interrupt) { m_interrupt = interrupt; }

    /** Starts a job with this title; false when the printer is unknown or out of reach, and then there is no job. */
    [[nodiscard]] bool openPrinter(const QString& printerName, const QString& title);
    [[nodiscard]] bool write(const QByteArray& bytes);
    /** Hands the job over; whatever the result, no job is open afterwards. */
    [[nodiscard]] bool close();
    [[nodiscard]] bool isOpen() const { return m_state != State::Closed; }

    /** What became of a job. Taken: it is in the queue or on its way to the paper. */
    enum class Fate { NoAnswer, NotThere, Taken, Printed, GivenBack };
    /** How fateOf() knows the job that is open or was the last one; empty where there was none. */
    [[nodiscard]] virtual QString reference() const = 0;
    /** The fate of a job that was handed over; the reason for a slip given back is in errorText(). */
    [[nodiscard]] virtual Fate fateOf(const QString& mark, const QString& reference) = 0;
    /**
     * The same for a job that a program left behind while it handed it over; the reference may be empty. What had only
     * begun is taken back, and then it is not there.
     */
    [[nodiscard]] virtual Fate findLeftJob(const QString& mark, const QString& reference) = 0;

    /** Empty, with an explanation in errorText(), where the printers cannot be listed. */
    [[nodiscard]] virtual QList<SlipPrinter> availablePrinters() = 0;

    /** Why the last call failed; empty after a success. */
    [[nodiscard]] const QString& errorText() const { return m_errorText; }

protected:
    virtual bool startJob(const QString& printerName, const QString& title) = 0;
    virtual bool sendBytes(const QByteArray& bytes) = 0;
    virtual bool finishJob() = 0;
    /** Takes back what was started; it is called for a job that broke, and must do nothing where there is no job. */
    virtual void dropJob() = 0;

    /** Keeps the explanation and gives the false that the failed call returns. */
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
