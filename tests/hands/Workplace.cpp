#include "hands/Workplace.h"

#include "app/context/AppContext.h"
#include "hands/Keys.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/Pages.h"

#include <QTabWidget>

Workplace::Workplace(const QString& settingsFile)
{
    AppContext::instance()->setShowDashboard(false);
    m_window = std::make_unique<MainWindow>();
    if (!settingsFile.isEmpty())
        m_window->setSettingsFile(settingsFile);
    AppContext::instance()->setMainWindow(m_window.get());
    m_window->show();
}

Workplace::~Workplace() { AppContext::instance()->setMainWindow(nullptr); }

bool Workplace::isReady() { return QTest::qWaitForWindowActive(m_window.get()); }

QStringList Workplace::pageNames()
{
    QStringList names;
    for (const Page& page : allPages()) {
        // The dashboard is a web page, and has no forms.
        if (page.className != "TabDashboard")
            names.append(page.className);
    }
    return names;
}

KorTab* Workplace::open(const QString& page)
{
    m_window->show();
    m_window->openTab(page);
    QApplication::setActiveWindow(m_window.get());
    auto* tab = qobject_cast<KorTab*>(m_window->findChild<QTabWidget*>("tabWidget")->currentWidget());
    if (QTableView* grid = gridInFront(*tab)) {
        grid->setFocus();
        if (grid->model() && grid->model()->rowCount() > 0)
            grid->selectRow(0);
    }
    return tab;
}

void Workplace::changeLanguage()
{
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_window.get(), &change);
}
