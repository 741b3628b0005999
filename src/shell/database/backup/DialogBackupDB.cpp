#include "shell/database/backup/DialogBackupDB.h"

#include "app/context/DatabaseServer.h"
#include "shell/database/check/RestoreQuestion.h"
#include "shell/database/tools/BackupFile.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/tools/ConnectionEdits.h"
#include "shell/database/tools/ToolRun.h"

#include "ui_DialogBackupDB.h"

#include <QFileInfo>
#include <QMessageBox>

#include <utility>

DialogBackupDB::DialogBackupDB(QWidget* parent) : ToolDialog(parent), m_ui(std::make_unique<Ui::DialogBackupDB>())
{
    m_ui->setupUi(this);
    m_ui->tabWidget->setCurrentIndex(0);
    m_backup = addRun(m_ui->txtBackupStatus, {m_ui->btnBackup, m_ui->btnBrowse});
    // m_import locks the restore's buttons from the first check of the database to the end of pg_restore.
    m_createDB = addRun(m_ui->txtRestoreStatus, {});
    m_import = addRun(m_ui->txtRestoreStatus, {m_ui->btnRestore, m_ui->btnBrowseImport, m_ui->btnSetActiveDB});
    m_vacuum = addRun(m_ui->txtVacuumStatus, {m_ui->btnVacuum, m_ui->btnReindex});
    connectRuns();
    const ConnectionSettings settings = ConnectionSettings::read(ConnectionSettings::defaultPath());
    for (const ConnectionEdits& edits : {backupEdits(), restoreEdits(), maintenanceEdits()})
        edits.show(settings);
    // Return presses the main button of the current tab.
    connect(m_ui->tabWidget, &QTabWidget::currentChanged, this, [this](int tab) {
        QPushButton* const actions[] = {m_ui->btnBackup, m_ui->btnRestore, m_ui->btnVacuum};
        actions[tab]->setDefault(true);
    });
    m_ui->btnBackup->setDefault(true);
    m_ui->txtOutputFile->setFocus();
}

DialogBackupDB::~DialogBackupDB()
{
    // Stop the programs before their files and boxes are deleted.
    stop();
}

void DialogBackupDB::connectRuns()
{
    connect(m_backup, &ToolRun::started, this, &DialogBackupDB::processStarted);
    connect(m_backup, &ToolRun::error, this, &DialogBackupDB::checkError);
    connect(m_backup, &ToolRun::exited, this, &DialogBackupDB::processExited);
    connect(m_backup, &ToolRun::readyRead, this, &DialogBackupDB::processReadyRead);

    connect(m_createDB, &ToolRun::started, this, &DialogBackupDB::processCreateDBStarted);
    connect(m_createDB, &ToolRun::error, this, &DialogBackupDB::checkCreateDBError);
    connect(m_createDB, &ToolRun::exited, this, &DialogBackupDB::processCreateDBExited);
    connect(m_createDB, &ToolRun::readyRead, this, &DialogBackupDB::processCreateDBReadyRead);

    connect(m_import, &ToolRun::started, this, &DialogBackupDB::processImportStarted);
    connect(m_import, &ToolRun::error, this, &DialogBackupDB::checkImportError);
    connect(m_import, &ToolRun::exited, this, &DialogBackupDB::processImportExited);
    connect(m_import, &ToolRun::readyRead, this, &DialogBackupDB::processImportReadyRead);

    connect(m_vacuum, &ToolRun::started, this, &DialogBackupDB::processVacuumStarted);
    connect(m_vacuum, &ToolRun::error, this, &DialogBackupDB::checkVacuumError);
    connect(m_vacuum, &ToolRun::exited, this, &DialogBackupDB::processVacuumExited);
    connect(m_vacuum, &ToolRun::readyRead, this, &DialogBackupDB::processVacuumReadyRead);
}

ConnectionEdits DialogBackupDB::backupEdits() const
{
    return {m_ui->txtDBHost, m_ui->txtDBName, m_ui->txtDBUser, m_ui->txtDBPassword, m_ui->txtDBPort};
}

ConnectionEdits DialogBackupDB::restoreEdits() const
{
    return {m_ui->txtDBHostImport, m_ui->txtDBNameImport, m_ui->txtDBUserImport, m_ui->txtDBPasswordImport,
            m_ui->txtDBPortImport};
}

ConnectionEdits DialogBackupDB::maintenanceEdits() const
{
    return {m_ui->txtDBHostMaintenance, m_ui->txtDBNameMaintenance, m_ui->txtDBUserMaintenance,
            m_ui->txtDBPasswordMaintenance, m_ui->txtDBPortMaintenance};
}

void DialogBackupDB::sayExit(ToolRun* run, int exitCode, QProcess::ExitStatus exitStatus)
{
    run->showOutput();
    run->say(tr("process exited with code: %1, status: %2").arg(exitCode).arg(exitStatus));
}

void DialogBackupDB::conclude(ToolRun* run, const QString& boxText, bool succeeded, const QString& verdict)
{
    run->say(verdict);
    run->end();
    showInfo(boxText);
    if (!succeeded)
        QMessageBox::critical(this, tr("Error"), verdict);
}

// Backup

void DialogBackupDB::on_btnBrowse_clicked()
{
    const QString path = BackupFile::askForNew(this, m_ui->txtOutputFile->text(), m_ui->txtDBName->text());
    if (!path.isEmpty())
        m_ui->txtOutputFile->setText(path);
}

void DialogBackupDB::on_btnBackup_clicked()
{
    const QString path = BackupFile::withEnding(m_ui->txtOutputFile->text());
    if (path.isEmpty())
        return showInfo(tr("Enter the ouput file"));
    m_ui->txtOutputFile->setText(path);
    m_file = std::make_unique<BackupFile>(path);
    QString reason;
    if (!m_file->prepare(&reason))
        return showInfo(reason);
    m_backup->start(ClientPrograms::backup(backupEdits().read(), path), tr("dumping your db..."));
}

void DialogBackupDB::processStarted() { m_backup->say(tr("pg_dump started...")); }

void DialogBackupDB::processReadyRead() { m_backup->showOutput(); }

void DialogBackupDB::checkError(QProcess::ProcessError error)
{
    showError(m_backup, error);
    if (error != QProcess::FailedToStart)
        return;
    m_file->settle(false);
    m_backup->say(m_file->verdict());
    m_backup->end();
}

void DialogBackupDB::processExited(int exitCode, QProcess::ExitStatus exitStatus)
{
    m_backup->showOutput();
    m_backup->say(tr("process exited with code: %1").arg(exitCode) + tr(", status:") + QString::number(exitStatus));
    const bool stands = m_file->settle(m_backup->succeeded());
    conclude(m_backup, tr("DB Backup Selesai"), stands, m_file->verdict());
}

// Restore

void DialogBackupDB::on_btnBrowseImport_clicked()
{
    const QString path = BackupFile::askForExisting(this, m_ui->txtInputFileImport->text());
    if (!path.isEmpty())
        m_ui->txtInputFileImport->setText(path);
}

void DialogBackupDB::on_btnRestore_clicked()
{
    m_target = restoreEdits().read();
    m_source = m_ui->txtInputFileImport->text();
    m_created = false;
    m_aside.clear();
    if (m_source.isEmpty())
        return showInfo(tr("Please enter the input file"));
    if (m_target.database.isEmpty())
        return showInfo(tr("Please enter the database name"));
    if (!QFileInfo(m_source).isFile())
        return showInfo(tr("There is no backup file %1.").arg(m_source));
    const QString whole = BackupFile::wholeOneBeside(m_source);
    if (!whole.isEmpty())
        return showInfo(tr("The backup %1 was cut off while it was written. The one before it is %2: please take that.")
                            .arg(m_source, whole));
    // If the query fails, the database does not exist yet, or pg_restore will report the reason.
    m_import->look(ClientPrograms::query(m_target, RestoreQuestion::countingTables()),
                   [this](bool, const QString& answer) { restoreUnlessInUse(answer.trimmed().toInt()); });
}

void DialogBackupDB::restoreUnlessInUse(int tables)
{
    if (tables == 0) {
        if (m_ui->cbCreateNewDB->isChecked())
            createDatabase();
        else
            startRestore();
        return;
    }
    const QString aside = RestoreQuestion::asideName(m_target.database);
    if (!RestoreQuestion::ask(this, m_target.database, tables, aside)) {
        m_import->say(tr("Nothing was restored. The database %1 is as it was.").arg(m_target.database));
        m_import->end();
        return;
    }
    // Check the file first: do not rename the database for a file that is not a backup.
    m_import->look(ClientPrograms::contents(m_source), [this, aside](bool readable, const QString&) {
        if (readable)
            setAside(aside);
        else
            refuse(RestoreQuestion::notReadable(m_source));
    });
}

void DialogBackupDB::setAside(const QString& aside)
{
    rename(m_target.database, aside, [this, aside](bool done, const QString& words) {
        if (!done) {
            m_import->say(words);
            return refuse(RestoreQuestion::notReplaced(m_target.database));
        }
        m_aside = aside;
        m_import->say(RestoreQuestion::kept(aside));
        createDatabase();
    });
}

void DialogBackupDB::rename(const QString& database, const QString& name,
                            std::function<void(bool, const QString&)> answer)
{
    ConnectionSettings maintenance = m_target;
    maintenance.database = "postgres";
    m_import->look(ClientPrograms::query(maintenance, DatabaseServer::renaming(database, name)), std::move(answer));
}

void DialogBackupDB::refuse(const QString& reason)
{
    m_import->say(reason);
    m_import->end();
    QMessageBox::critical(this, tr("Error"), reason);
}

void DialogBackupDB::createDatabase()
{
    m_createDB->start(ClientPrograms::createDatabase(m_target), tr("creating your db..."));
}

void DialogBackupDB::processCreateDBStarted() { m_createDB->say(tr("createdb started...")); }

void DialogBackupDB::processCreateDBReadyRead() { m_createDB->showOutput(); }

void DialogBackupDB::checkCreateDBError(QProcess::ProcessError error)
{
    showError(m_createDB, error);
    if (error != QProcess::FailedToStart)
        return;
    m_createDB->end();
    if (!m_aside.isEmpty())
        return putBack();
    m_import->say(tr("The database %1 was not created, and nothing was restored.").arg(m_target.database));
    m_import->end();
}

void DialogBackupDB::putBack()
{
    rename(m_aside, m_target.database, [this](bool done, const QString&) {
        refuse(done ? tr("Nothing was restored. The database %1 is as it was.").arg(m_target.database)
                    : tr("The database %1 was not created, and nothing was restored.").arg(m_target.database) + ' ' +
                          RestoreQuestion::kept(m_aside));
    });
}

void DialogBackupDB::processCreateDBExited(int exitCode, QProcess::ExitStatus exitStatus)
{
    sayExit(m_createDB, exitCode, exitStatus);
    m_created = m_createDB->succeeded();
    if (!m_created)
        m_createDB->say(tr("The database %1 was not created, the reason stands above.").arg(m_target.database));
    m_createDB->end();
    if (!m_created && !m_aside.isEmpty())
        return putBack();
    // If there is no database to restore into, pg_restore fails and reports it.
    startRestore();
}

void DialogBackupDB::startRestore()
{
    m_import->start(ClientPrograms::restore(m_target, m_source), tr("restoring your db..."));
}

void DialogBackupDB::processImportStarted() { m_import->say(tr("pg_restore started...")); }

void DialogBackupDB::processImportReadyRead() { m_import->showOutput(); }

void DialogBackupDB::checkImportError(QProcess::ProcessError error)
{
    showError(m_import, error);
    if (error != QProcess::FailedToStart)
        return;
    m_import->say(m_created ? tr("Nothing was restored. The new database %1 is empty.").arg(m_target.database)
                            : tr("Nothing was restored. The database %1 is as it was.").arg(m_target.database));
    m_import->end();
}

void DialogBackupDB::processImportExited(int exitCode, QProcess::ExitStatus exitStatus)
{
    sayExit(m_import, exitCode, exitStatus);
    const bool succeeded = m_import->succeeded();
    QString verdict = tr("The backup was restored to the database %1.");
    if (!succeeded && m_created)
        verdict = tr("The restore failed, the reason stands above. The new database %1 is not complete: do not work "
                     "with it. Restore into another new one.");
    else if (!succeeded)
        verdict = tr("The restore failed or left something out, the reason stands above. If there is a database %1, do "
                     "not work with it: restore into a new one.");
    verdict = verdict.arg(m_target.database);
    if (!m_aside.isEmpty())
        verdict += ' ' + RestoreQuestion::kept(m_aside);
    conclude(m_import, tr("Your database has been successfully restored"), succeeded, verdict);
}

void DialogBackupDB::on_btnSetActiveDB_clicked()
{
    const QString path = ConnectionSettings::defaultPath();
    // Keeps the other settings of the file.
    const ConnectionSettings settings = restoreEdits().read(ConnectionSettings::read(path));
    if (settings.database.isEmpty())
        return showInfo(tr("Please enter the database name"));
    if (QMessageBox::question(
            this, tr("Update DB Config"),
            tr("Are you sure, you want to use this database: %1 for this application?").arg(settings.database),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
        return;
    if (!settings.write(path)) {
        QMessageBox::critical(this, tr("Error"), tr("Can't write the settings file: %1").arg(path));
        return;
    }
    emit onUpdateDBConf();
    showInfo(tr("Please restart the app first!"));
}

// Maintenance

void DialogBackupDB::on_btnVacuum_clicked()
{
    maintain(ClientPrograms::vacuum(maintenanceEdits().read()), tr("vacuuming your db..."));
}

void DialogBackupDB::on_btnReindex_clicked()
{
    maintain(ClientPrograms::reindex(maintenanceEdits().read()), tr("reindexing your db..."));
}

void DialogBackupDB::maintain(const ClientCommand& command, const QString& doing)
{
    if (m_ui->txtDBNameMaintenance->text().isEmpty())
        return showInfo(tr("Please enter the database name"));
    m_vacuum->start(command, doing);
}

void DialogBackupDB::processVacuumStarted() { m_vacuum->say(tr("started...")); }

void DialogBackupDB::processVacuumReadyRead() { m_vacuum->showOutput(); }

void DialogBackupDB::checkVacuumError(QProcess::ProcessError error)
{
    showError(m_vacuum, error);
    if (error != QProcess::FailedToStart)
        return;
    m_vacuum->say(tr("Nothing was done. The database is as it was."));
    m_vacuum->end();
}

void DialogBackupDB::processVacuumExited(int exitCode, QProcess::ExitStatus exitStatus)
{
    sayExit(m_vacuum, exitCode, exitStatus);
    const bool succeeded = m_vacuum->succeeded();
    conclude(m_vacuum, tr("Done"), succeeded,
             succeeded ? tr("The database was tidied.")
                       : tr("The work was not finished, the reason stands above. No data was changed."));
}
