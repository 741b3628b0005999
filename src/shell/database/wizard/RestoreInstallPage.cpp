#include "shell/database/wizard/RestoreInstallPage.h"

#include "shell/database/wizard/AppInstallerWizard.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

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
    auto* create = new QCheckBox(this);
    create->setToolTip(tr("Set it where the server has no database of this name yet"));
    form()->addRow(tr("Create a New Database:"), create);
    registerField("restore.createdb*", create);
}

int RestoreInstallPage::nextId() const { return AppInstallerWizard::Conclusion; }

void RestoreInstallPage::handleBrowse()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open File"), "/home/", tr("Backup File (*.bak)"));
    if (!file.isEmpty())
        m_file->setText(file);
}
