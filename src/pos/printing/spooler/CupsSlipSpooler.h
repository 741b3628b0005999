#pragma once

#include "pos/printing/spooler/SlipSpooler.h"

/**
 * Slips through the print server (CUPS) as raw documents. Each job has a connection of its own, so that a server that
 * was started anew is found again. No call takes longer than some seconds and no job longer than half a minute, also
 * with a server that takes the connection and never answers. A job bears its mark as "job-billing".
 */
class CupsSlipSpooler final : public SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(CupsSlipSpooler)

public:
    CupsSlipSpooler();
    ~CupsSlipSpooler() override;

    /** The job's number at the server. */
    [[nodiscard]] QString reference() const override { return m_reference; }
    [[nodiscard]] Fate fateOf(const QString& mark, const QString& reference) override;
    [[nodiscard]] Fate findLeftJob(const QString& mark, const QString& reference) override;
    [[nodiscard]] QList<SlipPrinter> availablePrinters() override;

protected:
    bool startJob(const QString& printerName, const QString& title) override;
    bool sendBytes(const QByteArray& bytes) override;
    bool finishJob() override;
    void dropJob() override;

private:
    struct Job;

    bool createJob(const QString& title);
    bool failWithServerText(const QString& what, const QString& reason);

    std::unique_ptr<Job> m_job;
    QString m_reference;
};
