#include "shell/database/wizard/IntroPage.h"

#include "shell/database/wizard/AppInstallerWizard.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

IntroPage::IntroPage(QWidget* parent) : QWizardPage(parent), m_fresh(new QRadioButton(tr("&Fresh Installation"), this))
{
    setTitle(tr("Introduction"));
    auto* text = new QLabel(tr("This wizard will help you install ZavelPOS on your computer. Please select "
                               "installation type."),
                            this);
    text->setWordWrap(true);
    auto* restore = new QRadioButton(tr("&Restore from Backup File"), this);
    m_fresh->setToolTip(tr("Lay down empty tables in a database that exists already"));
    restore->setToolTip(tr("Go on with the data of a backup, in a new database or in an existing one"));
    m_fresh->setChecked(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_fresh);
    layout->addWidget(restore);
    layout->addStretch();
    registerField("installtype.freshinstall", m_fresh);
    registerField("installtype.restoreinstall", restore);
}

int IntroPage::nextId() const
{
    return m_fresh->isChecked() ? AppInstallerWizard::FreshInstall : AppInstallerWizard::RestoreInstall;
}
