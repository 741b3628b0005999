#pragma once

#include "pos/printing/spooler/SlipSpooler.h"

#include <QDir>
#include <QFile>

/**
 * Slips as files, one a job, for machines without a printer: "<counter>-<printer>-<title>.slip", in the order of
 * printing. A job in progress stands under another name, so that whoever looks sees whole slips only.
 *
 * Every printer name is accepted, unless the folder holds a file "printers" with the known names, one a line; the
 * first is the default.
 */
class FolderSlipSpooler final : public SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(FolderSlipSpooler)

public:
    explicit FolderSlipSpooler(const QString& folder);
    ~FolderSlipSpooler() override;

    /** The folder that ZAVEL_SPOOL_DIR names; empty where slips go to the print server. */
    [[nodiscard]] static QString folderFromEnvironment();

    /** The job's number. */
    [[nodiscard]] QString reference() const override { return m_number; }
    [[nodiscard]] Fate fateOf(const QString& mark, const QString& reference) override;
    [[nodiscard]] Fate findLeftJob(const QString& mark, const QString& reference) override;
    [[nodiscard]] QList<SlipPrinter> availablePrinters() override;

protected:
    bool startJob(const QString& printerName, const QString& title) override;
    bool sendBytes(const QByteArray& bytes) override;
    bool finishJob() override;
    void dropJob() override;

private:
    [[nodiscard]] bool accepts(const QString& printerName);
    /** Creates the job's file under the next number; false when the folder cannot be written to. */
    bool takeNumber();
    [[nodiscard]] bool isTaken(const QString& number) const;

    QDir m_folder;
    QFile m_file;
    QString m_number;
    QString m_finalName;
};
