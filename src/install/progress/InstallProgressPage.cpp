#include "install/progress/InstallProgressPage.h"

#include "app/context/AppContext.h"
#include "install/tools/StatusText.h"
#include "install/zavel/ZavelInstaller.h"
#include "kor/install/KorInstallerThread.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

InstallProgressPage::InstallProgressPage(QWidget* parent) : QWizardPage(parent), m_status(new QPlainTextEdit(this))
{
    setTitle(tr("Installing..."));
    setSubTitle(tr("Please wait until the installation completed."));
    m_status->setReadOnly(true);
    m_status->setTabChangesFocus(true);
    auto* label = new QLabel(tr("Status:"), this);
    label->setBuddy(m_status);
    auto* layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_status, 1, 0);
}

void InstallProgressPage::run(ZavelInstaller* installer)
{
    if (m_running) {
        delete installer;
        return;
    }
    m_running = true;
    installer->setLogger(AppContext::instance()->logger());
    connect(installer, &KorInstaller::onProgress, this, &InstallProgressPage::onProgress);
    connect(installer, &KorInstaller::error, this, &InstallProgressPage::errorString);
    connect(installer, &KorInstaller::finished, this, [this] {
        m_running = false;
        emit ended();
    });
    startInstaller(installer);
}

void InstallProgressPage::onProgress(int perc, const QString& status)
{
    appendStatusLine(m_status, QString("[%1%] %2").arg(perc).arg(status));
}

void InstallProgressPage::errorString(const QString& err) { appendStatusLine(m_status, err); }
