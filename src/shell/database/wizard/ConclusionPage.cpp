#include "shell/database/wizard/ConclusionPage.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseServer.h"
#include "shell/database/check/DatabaseCondition.h"
#include "shell/database/check/RestoreQuestion.h"
#include "shell/database/tools/ClientProcess.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/tools/StatusText.h"
#include "shell/database/wizard/WizardConnection.h"
#include "zavel/install/ZavelInstaller.h"

#include <QMessageBox>
#include <QPlainTextEdit>

ConclusionPage::ConclusionPage(QWidget* parent)
    : InstallProgressPage(parent), m_settingsPath(WizardConnection::settingsPath()),
      m_createDB(new ClientProcess(this)), m_import(new ClientProcess(this))
{
    connect(this, &InstallProgressPage::ended, this, &ConclusionPage::concludeInstallation);
    connect(m_createDB, &QProcess::started, this, &ConclusionPage::processCreateDBStarted);
    connect(m_createDB, &QProcess::errorOccurred, this, &ConclusionPage::checkCreateDBError);
    connect(m_createDB, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &ConclusionPage::processCreateDBExited);
    connect(m_createDB, &QProcess::readyReadStandardOutput, this, &ConclusionPage::processCreateDBReadyRead);
    connect(m_import, &QProcess::started, this, &ConclusionPage::processImportStarted);
    connect(m_import, &QProcess::errorOccurred, this, &ConclusionPage::checkImportError);
    connect(m_import, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &ConclusionPage::processImportExited);
    connect(m_import, &QProcess::readyReadStandardOutput, this, &ConclusionPage::processImportReadyRead);
}

void ConclusionPage::initializePage()
{
    if (m_busy)
        return;
    statusBox()->clear();
    setBusy(true);
    if (field("installtype.freshinstall").toBool())
        installFresh();
    else if (field("installtype.restoreinstall").toBool())
        restore();
}

void ConclusionPage::setBusy(bool busy)
{
    m_busy = busy;
    emit completeChanged();
}

// --- a fresh database ----------------------------------------------------------------------------------------------

void ConclusionPage::installFresh()
{
    // The first prices are written before the row with the locale exists.
    const QString locale = field("localization.locale").toString();
    AppContext::instance()->setLocale(locale);
    auto* installer = new ZavelInstaller;
    installer->setAdminUserName(field("admin.username").toString());
    installer->setAdminPassword(field("admin.password").toString());
    installer->setType(KorInstaller::FreshInstall);
    installer->setLocale(locale);
    run(installer);
}

void ConclusionPage::concludeInstallation()
{
    if (!failures().isEmpty())
        appendStatusLine(statusBox(), tr("The installation is NOT complete: %1 of its steps failed, see the lines "
                                         "above. Install once more when the reason is gone: the program offers it "
                                         "under \"Setup\" when it starts.")
                                          .arg(failures().size()));
    setBusy(false);
}

// --- a backup ------------------------------------------------------------------------------------------------------

void ConclusionPage::restore()
{
    m_connection = {};
    m_connection.host = field("dbserverrestore.hostname").toString();
    m_connection.user = field("dbserverrestore.username").toString();
    m_connection.password = field("dbserverrestore.password").toString();
    m_connection.port = field("dbserverrestore.dbport").toInt();
    m_connection.database = field("restore.dbname").toString();
    m_backup = field("restore.file").toString();
    m_aside = field("restore.aside").toString();
    if (!m_aside.isEmpty())
        appendStatusLine(statusBox(), RestoreQuestion::kept(m_aside));
    if (!field("restore.createdb").toBool()) {
        restoreStep();
        return;
    }
    appendStatusLine(statusBox(), tr("creating your db..."));
    m_createDB->run(ClientPrograms::createDatabase(m_connection));
}

void ConclusionPage::restoreStep()
{
    // Another user may have filled the database since the question, or it could not be renamed and created again.
    if (WizardConnection::tryOpen(m_connection) && WizardConnection::countTables() > 0) {
        appendStatusLine(
            statusBox(),
            tr("The database %1 holds tables. Nothing was restored into them.").arg(m_connection.database));
        setBusy(false);
        return;
    }
    appendStatusLine(statusBox(), tr("restoring your db..."));
    m_import->run(ClientPrograms::restore(m_connection, m_backup));
}

void ConclusionPage::tellError(QProcess::ProcessError err)
{
    const QString reason = static_cast<QProcess*>(sender())->errorString();
    appendStatusLine(statusBox(), tr("Error: %1").arg(reason));
    QMessageBox::critical(this, tr("Error"), tr("Error %1").arg(err));
}

void ConclusionPage::tellExit(int exitCode, QProcess::ExitStatus status)
{
    appendStatusLine(statusBox(), tr("process exited with code: %1, status: %2").arg(exitCode).arg(status));
}

void ConclusionPage::processCreateDBStarted() { appendStatusLine(statusBox(), tr("createdb started...")); }

void ConclusionPage::processCreateDBReadyRead() { appendStatus(statusBox(), m_createDB->takeOutput()); }

void ConclusionPage::checkCreateDBError(QProcess::ProcessError err)
{
    tellError(err);
    if (err != QProcess::FailedToStart)
        return;
    appendStatusLine(statusBox(), tr("The program that creates databases could not be started. Are PostgreSQL's "
                                     "client programs installed on this machine?"));
    putBack();
    restoreStep();
}

void ConclusionPage::processCreateDBExited(int exitCode, QProcess::ExitStatus status)
{
    processCreateDBReadyRead();
    tellExit(exitCode, status);
    if (!m_createDB->succeeded()) {
        appendStatusLine(statusBox(), tr("The database %1 was NOT created. The backup goes into the database of that "
                                         "name, if there is one.")
                                          .arg(m_connection.database));
        putBack();
    }
    restoreStep();
}

void ConclusionPage::putBack()
{
    if (m_aside.isEmpty())
        return;
    DatabaseServer server(AppContext::instance()->databaseManager(), m_connection);
    if (server.rename(m_aside, m_connection.database))
        m_aside.clear();
}

void ConclusionPage::processImportStarted() { appendStatusLine(statusBox(), tr("pg_restore started...")); }

void ConclusionPage::processImportReadyRead() { appendStatus(statusBox(), m_import->takeOutput()); }

void ConclusionPage::checkImportError(QProcess::ProcessError err)
{
    tellError(err);
    if (err != QProcess::FailedToStart)
        return;
    appendStatusLine(statusBox(), tr("The program that restores backups could not be started, and nothing was "
                                     "restored. Are PostgreSQL's client programs installed on this machine?"));
    setBusy(false);
}

void ConclusionPage::processImportExited(int exitCode, QProcess::ExitStatus status)
{
    processImportReadyRead();
    tellExit(exitCode, status);
    if (!m_import->succeeded())
        appendStatusLine(statusBox(), tr("The backup was NOT restored completely: pg_restore ended with code %1. What "
                                         "it says stands above.")
                                          .arg(exitCode));
    concludeRestore();
    setBusy(false);
}

void ConclusionPage::concludeRestore()
{
    if (!WizardConnection::open(this, m_connection))
        return;
    const DatabaseCondition condition = DatabaseCondition::readWithVersion();
    if (!condition.isUsable() && !m_import->succeeded()) {
        // With settings for this database, the next start would fail at the login.
        appendStatusLine(statusBox(), tr("The database %1 cannot be used like this, and the program was not set up "
                                         "for it. \"Finish\" begins the wizard once more; restore the backup into a "
                                         "new database.")
                                          .arg(m_connection.database));
        return;
    }
    if (!condition.isWhole())
        appendStatusLine(statusBox(),
                         condition.hasTables()
                             ? condition.explanation()
                             : tr("The database %1 holds none of the program's tables.").arg(m_connection.database));
    if (WizardConnection::save(this, m_connection, m_settingsPath))
        QMessageBox::information(this, tr("Info"), tr("Your database has been successfully restored"));
}
