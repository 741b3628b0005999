#include "shell/database/clearing/DialogClearTransactions.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/persistence/KorQuery.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "shell/database/clearing/ClearingGuard.h"
#include "shell/database/tools/BackupFile.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/tools/ConnectionEdits.h"
#include "shell/database/tools/StatusText.h"
#include "shell/database/tools/ToolRun.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include "ui_DialogClearTransactions.h"

#include <QMessageBox>

namespace
{
ConnectionEdits edits(const Ui::DialogClearTransactions& ui)
{
    return {ui.txtDBHost, ui.txtDBName, ui.txtDBUser, ui.txtDBPassword, ui.txtDBPort};
}
} // namespace

DialogClearTransactions::DialogClearTransactions(QWidget* parent)
    : ToolDialog(parent), m_ui(std::make_unique<Ui::DialogClearTransactions>())
{
    m_ui->setupUi(this);
    m_run = addRun(m_ui->txtStatus, {m_ui->btnBackupAndClearTransactions, m_ui->btnBrowse});
    connect(m_run, &ToolRun::started, this, &DialogClearTransactions::processStarted);
    connect(m_run, &ToolRun::error, this, &DialogClearTransactions::checkError);
    connect(m_run, &ToolRun::exited, this, &DialogClearTransactions::processExited);
    connect(m_run, &ToolRun::readyRead, this, &DialogClearTransactions::processReadyRead);
    edits(*m_ui).show(ConnectionSettings::read(ConnectionSettings::defaultPath()));
    m_ui->txtOutputFile->setFocus();
}

DialogClearTransactions::~DialogClearTransactions()
{
    // Stop the program before its file and box are deleted.
    stop();
}

void DialogClearTransactions::on_btnBrowse_clicked()
{
    const QString path = BackupFile::askForNew(this, m_ui->txtOutputFile->text(), m_ui->txtDBName->text());
    if (!path.isEmpty())
        m_ui->txtOutputFile->setText(path);
}

void DialogClearTransactions::on_btnBackupAndClearTransactions_clicked()
{
    const QString path = BackupFile::withEnding(m_ui->txtOutputFile->text());
    if (path.isEmpty())
        return showInfo(tr("Enter a valid backup file path"));
    m_ui->txtOutputFile->setText(path);
    m_connection = edits(*m_ui).read();
    m_guard = std::make_unique<ClearingGuard>();
    if (!m_guard->begin())
        return giveUp(tr("The program has no connection to its database. Nothing was cleared."));
    m_file = std::make_unique<BackupFile>(path);
    QString reason;
    if (!m_file->prepare(&reason))
        return giveUp(reason);
    m_run->look(ClientPrograms::query(m_connection, m_guard->question()),
                [this](bool answered, const QString& answer) { compared(answered, answer.trimmed()); });
}

void DialogClearTransactions::compared(bool answered, const QString& answer)
{
    if (answered && answer == "t")
        return giveUp(tr("The connection above leads to another database than the one that this program works with. "
                         "Nothing was backed up, and nothing was cleared."));
    // If the query failed, pg_dump will report the reason.
    m_sameDatabase = answered && answer == "f";
    m_run->start(ClientPrograms::backup(m_connection, m_file->path()), tr("dumping your db..."));
}

void DialogClearTransactions::processStarted() { m_run->say(tr("pg_dump started...")); }

void DialogClearTransactions::processReadyRead() { m_run->showOutput(); }

void DialogClearTransactions::checkError(QProcess::ProcessError error)
{
    showError(m_run, error);
    if (error != QProcess::FailedToStart)
        return;
    m_file->settle(false);
    giveUp(m_file->verdict() + ' ' + tr("Nothing was cleared."));
}

void DialogClearTransactions::processExited(int exitCode, QProcess::ExitStatus exitStatus)
{
    m_run->showOutput();
    m_run->say(tr("process exited with code: %1 , status: %2").arg(exitCode).arg(exitStatus));
    if (!m_file->settle(m_run->succeeded()))
        return giveUp(m_file->verdict() + ' ' + tr("Nothing was cleared."));
    m_run->say(m_file->verdict());
    if (!m_sameDatabase)
        return giveUp(tr("Nothing was cleared: it could not be made sure that the backup is one of the database that "
                         "this program works with."));
    m_run->look(ClientPrograms::contents(m_file->path()),
                [this](bool readable, const QString&) { clearIfSafe(readable); });
}

void DialogClearTransactions::clearIfSafe(bool readable)
{
    if (!readable)
        return giveUp(tr("The backup can not be read again. Nothing was cleared."));
    QStringList changed;
    if (!m_guard->findChanges(&changed))
        return giveUp(tr("The program has no connection to its database. Nothing was cleared."));
    if (!changed.isEmpty())
        return giveUp(tr("Somebody saved something while the backup was made, and the backup does not hold it: %1. "
                         "Nothing was cleared. Please close the program at all other workstations and try again.")
                          .arg(changed.join(", ")));
    resetTransactions();
}

void DialogClearTransactions::giveUp(const QString& reason)
{
    m_guard.reset();
    m_file.reset();
    m_run->say(reason);
    m_run->end();
    QMessageBox::critical(this, tr("Error"), reason);
}

void DialogClearTransactions::resetTransactions()
{
    KorQuery query;
    // Another workstation's lock on a table must not block this window forever.
    query.exec("SET lock_timeout = '3s'");
    const int failures = clearServices();
    query.exec("RESET lock_timeout");
    m_guard.reset();
    m_run->say(failures == 0 ? tr("All transactions were cleared. They are in the backup.")
                             : tr("What is marked by [error] was not cleared; the reason stands there. Everything is "
                                  "in the backup."));
    m_run->end();
    emit onCloseAllTab();
    showInfo(tr("Done. ") + (failures == 0 ? QString() : tr("Error: %1").arg(failures)));
}

int DialogClearTransactions::clearServices()
{
    int failures = 0;
    const QList<const KorBusinessRegistry*> registries{PosBusinessRegistry::instance(),
                                                       ZavelBusinessRegistry::instance()};
    for (const KorBusinessRegistry* registry : registries) {
        for (KorBusinessLogic* service : registry->all()) {
            appendStatus(m_ui->txtStatus, tr("resetting transactions: %1").arg(service->name()));
            const bool cleared = service->clearTransactions();
            appendStatus(m_ui->txtStatus, (cleared ? tr(" [ok]") : tr(" [error]")) + '\n');
            if (!cleared) {
                ++failures;
                m_run->say(service->takeErrors().trimmed());
            }
            m_ui->txtStatus->repaint();
        }
    }
    return failures;
}
