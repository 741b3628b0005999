#include "shell/database/wizard/AppInstallerWizard.h"

#include "shell/database/wizard/ConclusionPage.h"
#include "shell/database/wizard/FreshInstallPage.h"
#include "shell/database/wizard/IntroPage.h"
#include "shell/database/wizard/RestoreInstallPage.h"

#include <QIcon>
#include <QMessageBox>

AppInstallerWizard::AppInstallerWizard(QWidget* parent) : QWizard(parent), m_conclusion(new ConclusionPage)
{
    setWindowTitle(tr("ZavelPOS Installer Wizard"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    setPixmap(LogoPixmap, windowIcon().pixmap(48));
    setWizardStyle(ModernStyle);
    // An installation or restore cannot be undone by going back.
    setOptions(NoBackButtonOnStartPage | NoBackButtonOnLastPage);
    setPage(Intro, new IntroPage);
    setPage(FreshInstall, new FreshInstallPage);
    setPage(RestoreInstall, new RestoreInstallPage);
    setPage(Conclusion, m_conclusion);
    setStartId(Intro);
    resize(760, 500);
}

void AppInstallerWizard::done(int result)
{
    if (m_conclusion->isBusy()) {
        QMessageBox::information(this, tr("Info"), tr("Please wait until the installation completed."));
        return;
    }
    QWizard::done(result);
}
