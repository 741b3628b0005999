#pragma once

#include "shell/window/MainWindow.h"

#include <QStringList>

#include <memory>

class KorTab;

/** A workstation: the main window, shown, on the open database. */
class Workplace
{
public:
    /** Reads and writes the connection settings in this file, if given. */
    explicit Workplace(const QString& settingsFile = QString());
    ~Workplace();

    /** False if the window did not become active in time. */
    [[nodiscard]] bool isReady();
    [[nodiscard]] MainWindow& window() { return *m_window; }

    /** All pages except the dashboard, which is a web page without keys and forms. */
    [[nodiscard]] static QStringList pageNames();
    /** Opens the page, focuses its grid and selects the first row. */
    KorTab* open(const QString& page);
    void changeLanguage();

private:
    std::unique_ptr<MainWindow> m_window;
};
