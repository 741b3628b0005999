#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

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

    /** Starts a job with this title; false when the printer is unknown or out of reach, and then there is no job. */
    [[nodiscard]] bool openPrinter(const QString& printerName, const QString& title);
    [[nodiscard]] bool write(const QByteArray& bytes);
    /** Hands the job over; whatever the result, no job is open afterwards. */
    [[nodiscard]] bool close();
    [[nodiscard]] bool isOpen() const { return m_state != State::Closed; }

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

private:
    enum class State { Closed, Open, Broken };

    State m_state = State::Closed;
    QString m_errorText;
};
