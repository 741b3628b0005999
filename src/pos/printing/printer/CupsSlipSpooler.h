#pragma once

#include "pos/printing/printer/SlipSpooler.h"

/**
 * Slips through the print server (CUPS) as raw documents. Each job has a connection of its own, so that a server that
 * was started anew is found again, and a server that hangs holds the till for seconds only.
 */
class CupsSlipSpooler final : public SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(CupsSlipSpooler)

public:
    CupsSlipSpooler();
    ~CupsSlipSpooler() override;

    [[nodiscard]] QList<SlipPrinter> availablePrinters() override;

protected:
    bool startJob(const QString& printerName, const QString& title) override;
    bool sendBytes(const QByteArray& bytes) override;
    bool finishJob() override;
    void dropJob() override;

private:
    struct Job;

    bool failWithServerText(const QString& what);

    std::unique_ptr<Job> m_job;
};
