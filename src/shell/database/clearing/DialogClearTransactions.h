#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/tools/ToolDialog.h"

#include <QProcess>

#include <memory>

class BackupFile;
class ClearingGuard;
class ToolRun;
struct ConnectionEdits;

namespace Ui
{
class DialogClearTransactions;
}

/** Deletes all transactions, for example for a new year. It makes a backup first and stops if that fails. */
class DialogClearTransactions final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DialogClearTransactions(QWidget* parent = nullptr);
    ~DialogClearTransactions() override;

signals:
    /** The data of the open pages was deleted. */
    void onCloseAllTab();

private slots:
    void on_btnBrowse_clicked();
    void on_btnBackupAndClearTransactions_clicked();

    void processStarted();
    void checkError(QProcess::ProcessError error);
    void processExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processReadyRead();

private:
    /** Gets the result of ClearingGuard::question(): whether backup and program use the same database. */
    void compared(bool answered, const QString& answer);
    /** The last check before clearing: the backup is readable and nothing was saved since it began. */
    void clearIfSafe(bool readable);
    void giveUp(const QString& reason);
    void resetTransactions();
    /** The number of services that failed. */
    int clearServices();

    std::unique_ptr<Ui::DialogClearTransactions> m_ui;
    ToolRun* m_run;
    std::unique_ptr<BackupFile> m_file;
    std::unique_ptr<ClearingGuard> m_guard;
    ConnectionSettings m_connection;
    bool m_sameDatabase = false;
};
