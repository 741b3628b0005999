#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/tools/ToolDialog.h"

#include <QProcess>

#include <functional>
#include <memory>

class BackupFile;
class ToolRun;
struct ClientCommand;
struct ConnectionEdits;

namespace Ui
{
class DialogBackupDB;
}

/**
 * Backs up and restores the database, runs its maintenance, and changes to another database. PostgreSQL's client
 * programs do the work; each tab runs one at a time and shows its output in its status box.
 */
class DialogBackupDB final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DialogBackupDB(QWidget* parent = nullptr);
    ~DialogBackupDB() override;

signals:
    /** The database in "settings.ini" has changed. */
    void onUpdateDBConf();

private slots:
    void on_btnBackup_clicked();
    void on_btnBrowse_clicked();
    void on_btnRestore_clicked();
    void on_btnBrowseImport_clicked();
    void on_btnVacuum_clicked();
    void on_btnReindex_clicked();
    void on_btnSetActiveDB_clicked();

    void processStarted();
    void checkError(QProcess::ProcessError error);
    void processExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processReadyRead();

    void processCreateDBStarted();
    void checkCreateDBError(QProcess::ProcessError error);
    void processCreateDBExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processCreateDBReadyRead();

    void processImportStarted();
    void checkImportError(QProcess::ProcessError error);
    void processImportExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processImportReadyRead();

    void processVacuumStarted();
    void checkVacuumError(QProcess::ProcessError error);
    void processVacuumExited(int exitCode, QProcess::ExitStatus exitStatus);
    void processVacuumReadyRead();

private:
    void connectRuns();
    [[nodiscard]] ConnectionEdits backupEdits() const;
    [[nodiscard]] ConnectionEdits restoreEdits() const;
    [[nodiscard]] ConnectionEdits maintenanceEdits() const;
    /** Continues the restore. If the target database has tables, asks first and then renames it. */
    void restoreUnlessInUse(int tables);
    void setAside(const QString& aside);
    /** The new database could not be created: renames the former one back. */
    void putBack();
    void rename(const QString& database, const QString& name, std::function<void(bool, const QString&)> answer);
    /** Ends the restore before it changes anything, and shows the reason. */
    void refuse(const QString& reason);
    void createDatabase();
    void startRestore();
    void maintain(const ClientCommand& command, const QString& doing);
    void sayExit(ToolRun* run, int exitCode, QProcess::ExitStatus exitStatus);
    /** Shows the message box at the end of a run, and on failure a second one with the verdict. */
    void conclude(ToolRun* run, const QString& boxText, bool succeeded, const QString& verdict);

    std::unique_ptr<Ui::DialogBackupDB> m_ui;
    ToolRun* m_backup;
    ToolRun* m_createDB;
    ToolRun* m_import;
    ToolRun* m_vacuum;
    std::unique_ptr<BackupFile> m_file;
    // The parameters of the current restore.
    ConnectionSettings m_target;
    QString m_source;
    bool m_created = false;
    /** The new name of the former database; empty if there was none. */
    QString m_aside;
};
