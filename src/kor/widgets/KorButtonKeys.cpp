#include "kor/widgets/KorButtonKeys.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcutEvent>

namespace
{
// Milliseconds, and pixels: what no hand does on purpose.
constexpr int blink = 100;
constexpr int fingertip = 12;

/** The widget that a shortcut belongs to; null for one that belongs to none. */
QWidget* ownerOf(QObject* receiver)
{
    if (const auto* action = qobject_cast<QAction*>(receiver); action && !action->parentWidget())
        return action->associatedWidgets().value(0);
    while (receiver && !receiver->isWidgetType())
        receiver = receiver->parent();
    return static_cast<QWidget*>(receiver);
}

bool isModifier(int key)
{
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta;
}

/** Searching or typing twice is nothing to guard against; what is written, printed or paid is. */
bool actsOnce(const QPushButton& button)
{
    return button.property("actsOnce").toBool() || qobject_cast<QDialogButtonBox*>(button.parentWidget());
}

/** Tells the form what leaving the box would tell it. */
void endEntry(const QAbstractButton* button)
{
    QWidget* focus = QApplication::focusWidget();
    if (!focus || focus == button || focus->window() != button->window())
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(focus)) {
        if (edit->hasAcceptableInput() && !edit->isReadOnly())
            emit edit->editingFinished();
    } else if (auto* spin = qobject_cast<QAbstractSpinBox*>(focus)) {
        spin->interpretText();
        emit spin->editingFinished();
    }
}
} // namespace

void KorButtonKeys::watch()
{
    static QPointer<KorButtonKeys> keys;
    if (keys || !qApp)
        return;
    keys = new KorButtonKeys(qApp);
    qApp->installEventFilter(keys);
}

bool KorButtonKeys::isBlocked(const QWidget* widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (!widget || !modal || modal == widget->window())
        return false;
    // What the open form shows beside itself is no more below it than the form.
    for (const QWidget* above = widget; above; above = above->parentWidget()) {
        if (above == modal)
            return false;
    }
    return true;
}

bool KorButtonKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Polish:
        // Behind what a button does, since that was connected when it was made.
        if (auto* button = qobject_cast<QPushButton*>(watched); button && actsOnce(*button)) {
            connect(button, &QPushButton::released, this, [this, button] {
                m_begun = m_now;
                m_open.append({button, m_now});
            });
            connect(button, &QPushButton::clicked, this, [this, button] { ends(button); });
        }
        return false;
    case QEvent::WindowBlocked:
        // A form that has opened is something else to do, however it is closed again.
        ++m_now.number;
        return false;
    case QEvent::ShortcutOverride:
        m_now.key = static_cast<QKeyEvent*>(event)->key();
        m_now.time = static_cast<QKeyEvent*>(event)->timestamp();
        return false;
    case QEvent::Shortcut: {
        if (isBlocked(ownerOf(watched)))
            return true;
        auto* button = qobject_cast<QAbstractButton*>(watched);
        const bool mine = button && !static_cast<QShortcutEvent*>(event)->isAmbiguous();
        // The key that has just come, by the way of its override.
        if (mine && (isSameGesture(m_now) || isSecondPress(button)))
            return true;
        ++m_now.number;
        if (mine)
            pressByKey(button);
        return mine;
    }
    case QEvent::KeyPress:
        return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return takeTap(watched, *static_cast<QMouseEvent*>(event));
    default:
        return false;
    }
}

bool KorButtonKeys::isSameGesture(const Input& input) const
{
    // By the clock of the window system it was one movement of the hand, whatever the first half has opened meanwhile:
    // the second must not answer a question that nobody has read.
    const bool sameAim = input.key ? input.key == m_begun.key
                                   : !m_begun.key && (input.place - m_begun.place).manhattanLength() < fingertip;
    return sameAim && input.time && m_begun.time && input.time >= m_begun.time && input.time - m_begun.time < blink;
}

bool KorButtonKeys::takeKey(const QKeyEvent& key)
{
    if (isSameGesture({key.key(), {}, key.timestamp()}))
        return true;
    // A scanner is as fast as that, and means each Return of its own.
    if (!isModifier(key.key()))
        m_begun = {};
    m_now.key = key.key();
    m_now.time = key.timestamp();
    // Enter on a form goes no road of shortcuts: a second one would press the same button again, or that of the form
    // below.
    if (m_press.key == key.key() && m_press.number == m_now.number) {
        if (key.isAutoRepeat() || (m_button && m_button->isVisible() && withinABlink(key.timestamp())) ||
            (key.timestamp() && key.timestamp() - m_press.time < blink)) {
            m_done.start();
            return true;
        }
    }
    ++m_now.number;
    return false;
}

bool KorButtonKeys::takeTap(QObject* watched, const QMouseEvent& tap)
{
    // Each tap comes to its window first, and then to the widget there.
    if (!watched->isWidgetType())
        return false;
    if (isSameGesture({0, tap.globalPos(), tap.timestamp()}))
        return true;
    m_begun = {};
    if (const auto* button = qobject_cast<QPushButton*>(watched); button && isSecondPress(button))
        return true;
    m_now.key = 0;
    m_now.place = tap.globalPos();
    m_now.time = tap.timestamp();
    ++m_now.number;
    return false;
}

void KorButtonKeys::pressByKey(QAbstractButton* button)
{
    if (!button->isEnabled())
        return;
    const QPointer<QAbstractButton> alive(button);
    endEntry(button);
    // What the end of the entry brought about may have taken the button away.
    if (alive && button->isEnabled() && button->isVisible())
        button->click();
}

bool KorButtonKeys::isSecondPress(const QAbstractButton* button) const
{
    return m_button == button && m_press.number == m_now.number && withinABlink(m_now.time);
}

bool KorButtonKeys::withinABlink(ulong time) const
{
    // A press that had to wait for the first one's end was meant as the same, too.
    return (m_done.isValid() && !m_done.hasExpired(blink)) || (time && m_press.time && time - m_press.time < blink);
}

void KorButtonKeys::ends(QAbstractButton* button)
{
    // Those of forms that the button opened have ended, or are gone.
    while (!m_open.isEmpty() && m_open.last().button != button)
        m_open.removeLast();
    if (m_open.isEmpty())
        return;
    m_press = m_open.takeLast().input;
    // Whoever did something else meanwhile, in a form that the button opened, presses it for the first time again.
    m_button = m_press.number == m_now.number ? button : nullptr;
    m_done.start();
}
