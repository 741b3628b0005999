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

/** Where the owner empties all transactions for a new year. A backup is made first, and without a good one it ends. */
class DialogClearTransactions final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DialogClearTransactions(QWidget* parent = nullptr);
    ~DialogClearTransactions() override;

signals:
    /** What open pages show is gone. */
    void onCloseAllTab();

private slots:
    void on_btnBrowse_clicked();
    void on_btnBackupAndClearTransactions_clicked();

    void processStarted();
    void checkError(QProcess::ProcessError error);
    void processExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processReadyRead();

private:
    /** Of the backup's connection and the program's: whether they lead to one database. */
    void compared(bool answered, const QString& answer);
    /** The last look before the deed: the backup can be read, and nobody has saved anything since it began. */
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
