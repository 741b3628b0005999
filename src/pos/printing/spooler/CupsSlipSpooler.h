#pragma once

#include "pos/printing/spooler/SlipSpooler.h"

/**
 * Sends slips as raw documents to the print server (CUPS). Each job uses a new connection, so that a restarted server
 * is found. A call takes at most some seconds and a job at most half a minute, even if the server does not answer. The
 * mark of a job is its attribute "job-billing".
 */
class CupsSlipSpooler final : public SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(CupsSlipSpooler)

public:
    CupsSlipSpooler();
    ~CupsSlipSpooler() override;

    /** The job's number on the server. */
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
