#pragma once

#include <QObject>

class QMenuBar;
class QTabWidget;

/** The keys of the window as a whole: from page to page, closing a page, and into the menus. */
class WindowKeys final : public QObject
{
    Q_OBJECT

public:
    WindowKeys(QMenuBar* menus, QTabWidget* pages);

private:
    void turn(int pages);

    QTabWidget* m_pages;
};
