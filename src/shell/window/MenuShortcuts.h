#pragma once

#include <QObject>

class QAction;
class QMenuBar;

/**
 * Resolves keys that are both the shortcut of an action and the mnemonic of a menu, such as Alt+D: the action wins.
 * Otherwise Qt finds the key ambiguous and runs neither.
 */
class MenuShortcuts final : public QObject
{
    Q_OBJECT

public:
    /** Covers the menus that the bar has at this time. */
    explicit MenuShortcuts(QMenuBar* bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QAction*> m_actions;
};
