#include "shell/database/wizard/RestoreInstallPage.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseServer.h"
#include "shell/database/check/RestoreQuestion.h"
#include "shell/database/tools/ClientProcess.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/database/wizard/LocalServers.h"
#include "shell/database/wizard/WizardConnection.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace
{
const char* const aside = "aside";
}

RestoreInstallPage::RestoreInstallPage(QWidget* parent) : DetailsPage(parent)
{
    setTitle(tr("Restore from Backup File Installation Details"));
    setSubTitle(tr("Below you should enter your database connection details and backup file path."));
    m_connection.host = addLine(tr("Hostname:"), "dbserverrestore.hostname");
    m_connection.user = addLine(tr("Username:"), "dbserverrestore.username");
    m_connection.password = addPassword(tr("Password:"), "dbserverrestore.password");
    m_connection.port = addPort(tr("Database Port:"), "dbserverrestore.dbport");

    m_file = makeLine("restore.file");
    auto* browse = new QPushButton(QIcon(":/icons/browse.png"), tr("Browse"), this);
    connect(browse, &QPushButton::clicked, this, &RestoreInstallPage::handleBrowse);
    auto* fileLabel = new QLabel(tr("Backup File Path:"), this);
    fileLabel->setBuddy(m_file);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file);
    fileRow->addWidget(browse);
    form()->addRow(fileLabel, fileRow);

    m_connection.database = addLine(tr("Restore to Database:"), "restore.dbname");
    m_create = new QCheckBox(this);
    m_create->setToolTip(tr("Set it where the server has no database of this name yet"));
    form()->addRow(tr("Create a New Database:"), m_create);
    registerField("restore.createdb*", m_create);
    setProperty(aside, QString());
    registerField("restore.aside", this, aside);
}

bool RestoreInstallPage::validatePage()
{
    setProperty(aside, QString());
    // If it cannot be opened, it does not exist yet, or the client programs will report the reason.
    const int tables = openTarget() ? WizardConnection::countTables() : 0;
    return tables == 0 || replace(tables);
}

bool RestoreInstallPage::openTarget()
{
    const ConnectionSettings target = m_connection.read();
    if (WizardConnection::tryOpen(target))
        return true;
    const int port = LocalServers().portInPlaceOf(target);
    if (port == 0 || QMessageBox::question(this, tr("Question"),
                                           tr("Nobody answers on port %1. %2 Do you want to use that one?")
                                               .arg(QString::number(target.port), WizardConnection::listensOn(port))) !=
                         QMessageBox::Yes)
        return false;
    m_connection.port->setText(QString::number(port));
    return WizardConnection::tryOpen(m_connection.read());
}

bool RestoreInstallPage::replace(int tables)
{
    const ConnectionSettings target = m_connection.read();
    const QString name = RestoreQuestion::asideName(target.database);
    if (!RestoreQuestion::ask(this, target.database, tables, name))
        return false;
    ClientProcess look;
    look.run(ClientPrograms::contents(m_file->text()));
    if (!look.waitForFinished() || !look.succeeded()) {
        QMessageBox::critical(this, tr("Error"), RestoreQuestion::notReadable(m_file->text()));
        return false;
    }
    DatabaseServer server(AppContext::instance()->databaseManager(), target);
    if (!server.rename(target.database, name)) {
        QMessageBox box(QMessageBox::Critical, tr("Error"), RestoreQuestion::notReplaced(target.database),
                        QMessageBox::Ok, this);
        box.setInformativeText(server.failure());
        box.exec();
        return false;
    }
    setProperty(aside, name);
    m_create->setChecked(true);
    return true;
}

int RestoreInstallPage::nextId() const { return AppInstallerWizard::Conclusion; }

void RestoreInstallPage::handleBrowse()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open File"), "/home/", tr("Backup File (*.bak)"));
    if (!file.isEmpty())
        m_file->setText(file);
}
