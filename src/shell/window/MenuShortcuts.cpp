#include "shell/window/MenuShortcuts.h"

#include <QAction>
#include <QMenuBar>
#include <QShortcutEvent>

#include <algorithm>

MenuShortcuts::MenuShortcuts(QMenuBar* bar) : QObject(bar)
{
    const QList<QAction*> menus = bar->actions();
    const QList<QAction*> actions = bar->parent()->findChildren<QAction*>();
    for (QAction* action : actions) {
        const auto clashes = [action](const QAction* menu) {
            return QKeySequence::mnemonic(menu->text()) == action->shortcut();
        };
        if (action->shortcut().isEmpty() || std::none_of(menus.begin(), menus.end(), clashes))
            continue;
        action->installEventFilter(this);
        m_actions.append(action);
    }
    bar->installEventFilter(this);
}

bool MenuShortcuts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Shortcut) {
        const QKeySequence key = static_cast<QShortcutEvent*>(event)->key();
        for (QAction* action : qAsConst(m_actions)) {
            if (action->shortcut() == key) {
                action->activate(QAction::Trigger);
                return true;
            }
        }
    }
    return QObject::eventFilter(watched, event);
}
