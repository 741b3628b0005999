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
 * Where the owner backs the database up and gets it back, tidies it, and makes the program work with another one.
 * PostgreSQL's own programs do the work; each tab has one at work at a time and tells of it in its status box.
 */
class DialogBackupDB final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DialogBackupDB(QWidget* parent = nullptr);
    ~DialogBackupDB() override;

signals:
    /** "settings.ini" names another database now. */
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
    /** Goes on with the restore; a database that holds tables makes way for it, or the person steps back. */
    void restoreUnlessInUse(int tables);
    void setAside(const QString& aside);
    /** Without a new database, the one that made way for it comes back. */
    void putBack();
    void rename(const QString& database, const QString& name, std::function<void(bool, const QString&)> answer);
    /** Ends the restore before it began. */
    void refuse(const QString& reason);
    void createDatabase();
    void startRestore();
    void maintain(const ClientCommand& command, const QString& doing);
    void sayExit(ToolRun* run, int exitCode, QProcess::ExitStatus exitStatus);
    /** The box that stands for the end of every run, and behind it what really happened where it went wrong. */
    void conclude(ToolRun* run, const QString& boxText, bool succeeded, const QString& verdict);

    std::unique_ptr<Ui::DialogBackupDB> m_ui;
    ToolRun* m_backup;
    ToolRun* m_createDB;
    ToolRun* m_import;
    ToolRun* m_vacuum;
    std::unique_ptr<BackupFile> m_file;
    // What the restore at work was started with.
    ConnectionSettings m_target;
    QString m_source;
    bool m_created = false;
    /** The name that the former database is kept under; empty where there was none. */
    QString m_aside;
};
