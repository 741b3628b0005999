#include "shell/database/updater/AppDBUpdateConclusion.h"

#include "zavel/install/ZavelInstaller.h"

#include <QPlainTextEdit>
#include <QTimer>

namespace
{
constexpr int delay = 2000;
constexpr int longStandstill = 20000;
} // namespace

AppDBUpdateConclusion::AppDBUpdateConclusion(QWidget* parent)
    : InstallProgressPage(parent), m_delay(new QTimer(this)), m_standstill(new QTimer(this))
{
    setFinalPage(true);
    m_delay->setSingleShot(true);
    m_delay->setInterval(delay);
    connect(m_delay, &QTimer::timeout, this, &AppDBUpdateConclusion::begin);
    m_standstill->setInterval(longStandstill);
    // An open transaction of another session can block the update of a table without limit.
    connect(m_standstill, &QTimer::timeout, this, [this] {
        errorString(tr("The update is waiting for the database. Is the program still open on another workstation? "
                       "Please close it there."));
    });
    connect(this, &InstallProgressPage::ended, m_standstill, &QTimer::stop);
}

void AppDBUpdateConclusion::initializePage()
{
    statusBox()->clear();
    emit entered();
    // The wizard shows the page only after this function returns.
    m_delay->start();
}

bool AppDBUpdateConclusion::validatePage()
{
    if (m_delay->isActive())
        begin();
    return true;
}

void AppDBUpdateConclusion::begin()
{
    m_delay->stop();
    auto* installer = new ZavelInstaller;
    installer->setType(KorInstaller::UpdateInstall);
    connect(installer, &KorInstaller::onProgress, m_standstill, qOverload<>(&QTimer::start));
    m_standstill->start();
    emit begun(installer);
    run(installer);
}
