#pragma once

#include <QObject>

class QAction;
class QMenuBar;

/**
 * Settles who gets a key that is both the shortcut of an action and the marked letter of a menu, as Alt+D is: the
 * action. Left alone, the toolkit would find the key ambiguous and run neither.
 */
class MenuShortcuts final : public QObject
{
    Q_OBJECT

public:
    /** Looks after the menus that stand in the bar now. */
    explicit MenuShortcuts(QMenuBar* bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QAction*> m_actions;
};
