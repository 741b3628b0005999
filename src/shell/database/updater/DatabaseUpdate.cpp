#include "shell/database/updater/DatabaseUpdate.h"

#include "kor/install/KorInstaller.h"
#include "shell/database/updater/AppDBUpdateConclusion.h"
#include "shell/database/updater/AppDBUpdaterWizard.h"

#include <QEvent>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>

DatabaseUpdate::DatabaseUpdate(QMainWindow* window) : QObject(window), m_window(window)
{
    window->installEventFilter(this);
}

void DatabaseUpdate::offer()
{
    if (m_running || m_wizardOpen)
        return;
    m_wizardOpen = true;
    AppDBUpdaterWizard wizard(m_window);
    connect(wizard.conclusion(), &AppDBUpdateConclusion::entered, this, [this] {
        m_entered = true;
        emit entered();
    });
    connect(wizard.conclusion(), &AppDBUpdateConclusion::begun, this, &DatabaseUpdate::watch);
    wizard.exec();
    m_wizardOpen = false;
    if (m_running) {
        m_window->statusBar()->showMessage(tr("The database is being updated. Please wait..."));
        m_window->setEnabled(false);
    } else {
        leave();
    }
}

void DatabaseUpdate::watch(KorInstaller* installer)
{
    m_running = true;
    m_failures.clear();
    connect(installer, &KorInstaller::stepFailed, this,
            [this](const QString& status) { m_failures.append(status.trimmed()); });
    connect(installer, &KorInstaller::error, this, [this](const QString& text) { m_failures.append(text); });
    connect(installer, &KorInstaller::finished, this, [this] {
        m_running = false;
        // While the wizard is open, its last line shows the result.
        if (m_wizardOpen)
            return;
        m_window->statusBar()->clearMessage();
        m_window->setEnabled(true);
        leave();
        tellResult();
    });
}

void DatabaseUpdate::leave()
{
    if (!m_entered)
        return;
    m_entered = false;
    emit left();
}

void DatabaseUpdate::tellResult()
{
    QString text = tr("The update of the database has ended. Please restart the app.");
    if (!m_failures.isEmpty())
        text += "\n\n" + tr("These steps failed; the log file has the particulars:") + '\n' + m_failures.join('\n');
    QMessageBox::information(m_window, tr("Info"), text);
}

bool DatabaseUpdate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_window || event->type() != QEvent::Close || !m_running)
        return QObject::eventFilter(watched, event);
    event->ignore();
    QMessageBox::information(m_window, tr("Info"),
                             tr("The database is being updated. Please wait until that has ended; the program can be "
                                "closed then."));
    return true;
}
