#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

class QAbstractButton;
class QKeyEvent;
class QMouseEvent;
class QWidget;

/**
 * Makes the shortcut keys of buttons safe for fast typing, in all pages and forms. A Qt button reacts 100 ms after its
 * shortcut, even if a form has opened meanwhile: the second of two quick keys would act below the form that the first
 * one opened. With this filter a key
 *
 * - presses its button at once;
 * - does nothing below a form or a question that is open;
 * - ends the current entry first, as if the box lost the focus;
 * - acts once when pressed twice quickly (a tap too), on buttons of a button box and on buttons whose form sets the
 * property "actsOnce".
 *
 * One event filter serves the whole program; pages and forms install it.
 */
class KorButtonKeys final : public QObject
{
    Q_OBJECT

public:
    static void watch();
    /** True if a modal form or question blocks the widget. */
    [[nodiscard]] static bool isBlocked(const QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;

    // The latest input. A key has no place, a tap has no key.
    struct Input
    {
        int key = 0;
        QPoint place;
        // The window system's time stamp; 0 if it gives none.
        ulong time = 0;
        int number = 0;
    };
    struct Press
    {
        QPointer<QAbstractButton> button;
        Input input;
    };

    [[nodiscard]] bool takeKey(const QKeyEvent& key);
    [[nodiscard]] bool takeTap(QObject* watched, const QMouseEvent& tap);
    void pressByKey(QAbstractButton* button);
    [[nodiscard]] bool isSecondPress(const QAbstractButton* button) const;
    [[nodiscard]] bool withinABlink(ulong time) const;
    /** True if this is the second half of the gesture that pressed the last guarded button, by the time stamps. */
    [[nodiscard]] bool isSameGesture(const Input& input) const;
    void ends(QAbstractButton* button);

    Input m_now;
    Input m_begun;
    // Presses whose slots are still running, the innermost last.
    QList<Press> m_open;
    // The button that was pressed last, the input that pressed it, and the time since its slots ended.
    QPointer<QAbstractButton> m_button;
    Input m_press;
    QElapsedTimer m_done;
};
