#include "shell/database/tools/InstallProgressPage.h"

#include "app/context/AppContext.h"
#include "kor/install/KorInstallerThread.h"
#include "shell/database/tools/StatusText.h"
#include "zavel/install/ZavelInstaller.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>

namespace
{
/** The server's message without the statement and the driver's text, which are in the log. */
QString serversWords(const QString& reason)
{
    return reason.section("\r\n", 0, 0).simplified().remove(QRegularExpression(" \\(\\w{5}\\) QPSQL:.*$"));
}
} // namespace

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
    m_failures.clear();
    installer->setLogger(AppContext::instance()->logger());
    connect(installer, &KorInstaller::onProgress, this, &InstallProgressPage::onProgress);
    connect(installer, &KorInstaller::stepFailed, this, &InstallProgressPage::keepFailure);
    connect(installer, &KorInstaller::error, this, &InstallProgressPage::errorString);
    connect(installer, &KorInstaller::error, this, [this](const QString& err) { m_failures.append(err); });
    connect(installer, &KorInstaller::finished, this, [this] {
        m_running = false;
        emit ended();
    });
    startInstaller(installer);
}

void InstallProgressPage::keepFailure(const QString& status, const QStringList& reasons, bool expected)
{
    QStringList words{"- " + status.trimmed()};
    for (const QString& reason : reasons)
        words.append(serversWords(reason));
    if (expected)
        words.append(tr("Every update tells this one; nothing is wrong."));
    m_failures.append(words.join(' '));
}

void InstallProgressPage::sumUp()
{
    if (m_failures.isEmpty())
        return;
    appendStatusLine(m_status, tr("Failed steps: %1. The particulars are in the log file.").arg(m_failures.size()));
    for (const QString& failure : qAsConst(m_failures))
        appendStatusLine(m_status, failure);
}

void InstallProgressPage::onProgress(int perc, const QString& status)
{
    // Lists the failures just before the last line, where they are easy to find.
    if (perc == 100)
        sumUp();
    appendStatusLine(m_status, QString("[%1%] %2").arg(perc).arg(status));
}

void InstallProgressPage::errorString(const QString& err) { appendStatusLine(m_status, err); }
