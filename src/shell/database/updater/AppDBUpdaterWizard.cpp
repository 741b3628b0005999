#include "shell/database/updater/AppDBUpdaterWizard.h"

#include "shell/database/updater/AppDBUpdateConclusion.h"
#include "shell/database/updater/AppDbUpdateInfo.h"

AppDBUpdaterWizard::AppDBUpdaterWizard(QWidget* parent) : QWizard(parent), m_conclusion(new AppDBUpdateConclusion)
{
    setPage(InfoPage, new AppDbUpdateInfo);
    setPage(ConclusionPage, m_conclusion);
    setStartId(InfoPage);
    setWizardStyle(QWizard::ModernStyle);
    setWindowTitle(tr("ZavelPOS DB Updater Wizard"));
    // The update must not be started twice.
    setOption(QWizard::DisabledBackButtonOnLastPage);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(640, 460);
}
