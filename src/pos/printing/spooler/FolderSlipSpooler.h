#pragma once

#include "pos/printing/spooler/SlipSpooler.h"

#include <QDir>
#include <QFile>

/**
 * Writes slips as files, one per job, for machines without a printer: "<counter>-<printer>-<title>.slip", numbered in
 * printing order. An unfinished job has another file name, so that readers only see complete slips.
 *
 * Every printer name is accepted, unless the folder has a file "printers" with the known names, one per line; the first
 * one is the default.
 */
class FolderSlipSpooler final : public SlipSpooler
{
    Q_DECLARE_TR_FUNCTIONS(FolderSlipSpooler)

public:
    explicit FolderSlipSpooler(const QString& folder);
    ~FolderSlipSpooler() override;

    /** The folder in ZAVEL_SPOOL_DIR; empty if slips go to the print server. */
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
    /** Creates the job's file with the next number; false if the folder cannot be written. */
    bool takeNumber();
    [[nodiscard]] bool isTaken(const QString& number) const;

    QDir m_folder;
    QFile m_file;
    QString m_number;
    QString m_finalName;
};
