#include "shell/window/WindowKeys.h"

#include <QMenuBar>
#include <QShortcut>
#include <QTabWidget>

WindowKeys::WindowKeys(QMenuBar* menus, QTabWidget* pages) : QObject(pages), m_pages(pages)
{
    const auto bind = [pages](const QList<QKeySequence>& keys, auto action) {
        for (const QKeySequence& key : keys)
            connect(new QShortcut(key, pages->window()), &QShortcut::activated, pages, action);
    };
    // Shortcuts instead of the tab widget's own keys, which the dashboard's web view would consume.
    bind({{"Ctrl+Tab"}, {"Ctrl+PgDown"}}, [this] { turn(1); });
    bind({{"Ctrl+Shift+Tab"}, {"Ctrl+PgUp"}}, [this] { turn(-1); });
    bind({{"Ctrl+W"}, {"Ctrl+F4"}}, [pages] {
        if (pages->count() > 0)
            emit pages->tabCloseRequested(pages->currentIndex());
    });
    bind({{"F10"}}, [menus] { menus->setActiveAction(menus->actions().value(0)); });
}

void WindowKeys::turn(int pages)
{
    const int count = m_pages->count();
    if (count > 1)
        m_pages->setCurrentIndex((m_pages->currentIndex() + pages + count) % count);
}
