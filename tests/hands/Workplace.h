#pragma once

#include "shell/window/MainWindow.h"

#include <QStringList>

#include <memory>

class KorTab;

/** A workstation in front of somebody: the main window, shown, on the database that is open. */
class Workplace
{
public:
    /** Connection settings are read from and written to that file, where one is named. */
    explicit Workplace(const QString& settingsFile = QString());
    ~Workplace();

    /** False when the window has not come to the front in time. */
    [[nodiscard]] bool isReady();
    [[nodiscard]] MainWindow& window() { return *m_window; }

    /** All pages but the dashboard, which is a web page without keys and forms of its own. */
    [[nodiscard]] static QStringList pageNames();
    /** Brings the page to the front, with the keys on its grid and the first row marked. */
    KorTab* open(const QString& page);
    void changeLanguage();

private:
    std::unique_ptr<MainWindow> m_window;
};
