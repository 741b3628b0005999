#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/tools/InstallProgressPage.h"

#include <QProcess>

class ClientProcess;
struct ClientCommand;

/**
 * Does the work when it is shown: installs the tables, or creates the database and restores the backup into it.
 * "Finish" is disabled until the end.
 */
class ConclusionPage final : public InstallProgressPage
{
    Q_OBJECT

public:
    explicit ConclusionPage(QWidget* parent = nullptr);

    void initializePage() override;
    [[nodiscard]] bool isComplete() const override { return !m_busy; }
    [[nodiscard]] int nextId() const override { return -1; }
    [[nodiscard]] bool isBusy() const { return m_busy; }

private slots:
    void processCreateDBStarted();
    void checkCreateDBError(QProcess::ProcessError err);
    void processCreateDBExited(int exitCode, QProcess::ExitStatus status);
    void processCreateDBReadyRead();
    void processImportStarted();
    void checkImportError(QProcess::ProcessError err);
    void processImportExited(int exitCode, QProcess::ExitStatus status);
    void processImportReadyRead();

private:
    void installFresh();
    void restore();
    void restoreStep();
    /** The new database could not be created: renames the former one back. */
    void putBack();
    void tellError(QProcess::ProcessError err);
    void tellExit(int exitCode, QProcess::ExitStatus status);
    /** Checks the restored database. Writes the settings unless pg_restore failed and left it unusable. */
    void concludeRestore();
    void concludeInstallation();
    void setBusy(bool busy);

    QString m_settingsPath;
    ConnectionSettings m_connection;
    QString m_backup;
    /** The new name of the former database; empty if there was none. */
    QString m_aside;
    ClientProcess* m_createDB;
    ClientProcess* m_import;
    bool m_busy = false;
};
