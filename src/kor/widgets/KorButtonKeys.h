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
 * Makes the keys of buttons safe for fast hands, in every page and form at once. Left to itself a button answers its
 * key 100 ms later, and no form that has opened meanwhile stops it: the second of two quick keys would act below the
 * form that the first one opened. Here a key
 *
 * - presses its button at once;
 * - does nothing below a form or a question that is open;
 * - ends the entry that is under way, as leaving its box by Tab does, before its button is pressed;
 * - does one thing when it is pressed twice within a blink, and so does a finger, on the buttons that end a form and
 *   on those whose form sets the property "actsOnce".
 *
 * One object watches over the whole program; pages and forms see to it that it is there.
 */
class KorButtonKeys final : public QObject
{
    Q_OBJECT

public:
    static void watch();
    /** Whether the widget lies below a form or a question that is open. */
    [[nodiscard]] static bool isBlocked(const QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;

    // What the hands did last; a key has no place, a tap no key.
    struct Input
    {
        int key = 0;
        QPoint place;
        // As the window system tells it; 0 where it tells none.
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
    /** Whether it is the second half of what pressed the last such button, by the window system's own clock. */
    [[nodiscard]] bool isSameGesture(const Input& input) const;
    void ends(QAbstractButton* button);

    Input m_now;
    Input m_begun;
    // What is at work, the innermost last.
    QList<Press> m_open;
    // The button that was pressed last, by which input, and since when it has done what it does.
    QPointer<QAbstractButton> m_button;
    Input m_press;
    QElapsedTimer m_done;
};
