#include "shell/database/wizard/FreshInstallPage.h"

#include "app/configuration/BusinessConfiguration.h"
#include "shell/database/check/ReplaceQuestion.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/database/wizard/WizardConnection.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

FreshInstallPage::FreshInstallPage(QWidget* parent)
    : DetailsPage(parent), m_settingsPath(WizardConnection::settingsPath())
{
    setTitle(tr("Fresh Installation Details"));
    setSubTitle(tr("Below you should enter your database connection details and administrator account profiles."));
    m_connection.host = addLine(tr("Hostname:"), "dbserverfresh.hostname");
    m_connection.user = addLine(tr("Username:"), "dbserverfresh.username");
    m_connection.password = addPassword(tr("Password:"), "dbserverfresh.password");
    m_connection.database = addLine(tr("Database Name:"), "dbserverfresh.dbname");
    m_connection.port = addPort(tr("Database Port:"), "dbserverfresh.dbport");
    m_adminName = addLine(tr("Admin Username:"), "admin.username");
    addPassword(tr("Admin Password:"), "admin.password");
    auto* locale = new QComboBox(this);
    locale->addItems(BusinessConfiguration::locales());
    locale->setCurrentText(BusinessConfiguration::localeOfMachine());
    locale->setToolTip(tr("How numbers and money are written, and in which currency the first items are priced"));
    form()->addRow(tr("Locale (ISO 639) :"), locale);
    registerField("localization.locale", locale, "currentText");
    m_connection.database->setToolTip(
        tr("Where the server has no database of this name yet, the program offers to create it"));
}

void FreshInstallPage::initializePage()
{
    DetailsPage::initializePage();
    if (m_adminName->text().isEmpty())
        m_adminName->setText("admin");
}

bool FreshInstallPage::validatePage()
{
    if (m_nothingToInstall)
        return true;
    if (!WizardConnection::openOrHelp(this, m_connection))
        return false;
    const ConnectionSettings connection = m_connection.read();
    const ReplaceQuestion::Answer answer = ReplaceQuestion::ask(this, ReplaceQuestion::UseToo);
    if (answer == ReplaceQuestion::Leave || !WizardConnection::save(this, connection, m_settingsPath))
        return false;
    if (answer == ReplaceQuestion::Replace)
        return true;
    // The next page would install, so the wizard ends here. accept() validates this page once more.
    m_nothingToInstall = true;
    wizard()->accept();
    return false;
}

int FreshInstallPage::nextId() const { return AppInstallerWizard::Conclusion; }
