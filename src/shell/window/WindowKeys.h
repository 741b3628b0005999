#pragma once

#include <QObject>

class QMenuBar;
class QTabWidget;

/** The shortcuts of the main window: switch pages, close a page, go to the menus. */
class WindowKeys final : public QObject
{
    Q_OBJECT

public:
    WindowKeys(QMenuBar* menus, QTabWidget* pages);

private:
    void turn(int pages);

    QTabWidget* m_pages;
};
