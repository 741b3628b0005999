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
// Milliseconds and pixels: two presses closer than this are one gesture.
constexpr int blink = 100;
constexpr int fingertip = 12;

/** The widget that a shortcut belongs to; null if there is none. */
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

/** Guard buttons that save, print or take a payment; searching or typing twice does no harm. */
bool actsOnce(const QPushButton& button)
{
    return button.property("actsOnce").toBool() || qobject_cast<QDialogButtonBox*>(button.parentWidget());
}

/** Emits what the focused box emits when it loses the focus. */
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
    // A window that the modal form opened itself is not blocked.
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
        // Connected after the button's own slots, which were connected when it was created.
        if (auto* button = qobject_cast<QPushButton*>(watched); button && actsOnce(*button)) {
            connect(button, &QPushButton::released, this, [this, button] {
                m_begun = m_now;
                m_open.append({button, m_now});
            });
            connect(button, &QPushButton::clicked, this, [this, button] { ends(button); });
        }
        return false;
    case QEvent::WindowBlocked:
        // An opened form counts as a new input, so that a later press is not taken for a repeated one.
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
        // m_now holds this key already, set by its ShortcutOverride event.
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
    // Two inputs that are this close are one gesture, even if the first has opened a form: the second must not answer a
    // question that nobody has read.
    const bool sameAim = input.key ? input.key == m_begun.key
                                   : !m_begun.key && (input.place - m_begun.place).manhattanLength() < fingertip;
    return sameAim && input.time && m_begun.time && input.time >= m_begun.time && input.time - m_begun.time < blink;
}

bool KorButtonKeys::takeKey(const QKeyEvent& key)
{
    if (isSameGesture({key.key(), {}, key.timestamp()}))
        return true;
    // Other keys end the gesture: a scanner types this fast, and each of its Returns counts.
    if (!isModifier(key.key()))
        m_begun = {};
    m_now.key = key.key();
    m_now.time = key.timestamp();
    // Enter in a form sends no shortcut event. A second Enter would press the same button again, or a button of the
    // form below.
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
    // The event filter gets each tap twice: first for the QWindow, then for the widget.
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
    // Ending the entry may have deleted, disabled or hidden the button.
    if (alive && button->isEnabled() && button->isVisible())
        button->click();
}

bool KorButtonKeys::isSecondPress(const QAbstractButton* button) const
{
    return m_button == button && m_press.number == m_now.number && withinABlink(m_now.time);
}

bool KorButtonKeys::withinABlink(ulong time) const
{
    // Also a press that had to wait in the queue until the first one's work was done.
    return (m_done.isValid() && !m_done.hasExpired(blink)) || (time && m_press.time && time - m_press.time < blink);
}

void KorButtonKeys::ends(QAbstractButton* button)
{
    // Remove entries of forms that this button opened; they have ended or are deleted.
    while (!m_open.isEmpty() && m_open.last().button != button)
        m_open.removeLast();
    if (m_open.isEmpty())
        return;
    m_press = m_open.takeLast().input;
    // If the user did something else in a form that the button opened, the next press is a first one.
    m_button = m_press.number == m_now.number ? button : nullptr;
    m_done.start();
}
