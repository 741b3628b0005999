#include "kor/widgets/KorWaitingSign.h"

#include "kor/widgets/KorWaitingPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>

namespace
{
constexpr qint64 stopAfterMilliseconds = 5000;

/** The active window; windows below a modal form are blocked anyway. */
QWidget* windowInUse()
{
    if (QWidget* form = QApplication::activeModalWidget())
        return form;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip)
            return window;
    }
    return nullptr;
}

bool isOfHands(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        return event.spontaneous();
    default:
        return false;
    }
}

/** Focus changes look up what was typed into a box, so they must wait. */
bool isOfCursor(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::FocusAboutToChange:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        return true;
    default:
        return false;
    }
}
} // namespace

void KorWaitingSign::watch()
{
    static QPointer<KorWaitingSign> sign;
    if (!sign)
        sign = new KorWaitingSign(qApp);
    KorServerCall::setWatcher(sign);
}

KorWaitingSign::KorWaitingSign(QObject* parent) : QObject(parent)
{
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &KorWaitingSign::end);
}

KorWaitingSign::~KorWaitingSign() { KorServerCall::setWatcher(nullptr); }

void KorWaitingSign::begin()
{
    m_panel = new KorWaitingPanel(windowInUse());
    m_panel->show();
    m_panel->raise();
    if (!m_busy)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    m_busy = true;
}

bool KorWaitingSign::goOn(const KorServerWait& wait)
{
    m_end.stop();
    // Its window may have been closed between two calls.
    if (m_panel && !m_panel->isVisible())
        delete m_panel;
    if (!m_panel)
        begin();
    m_panel->tell(wait.holders);
    m_panel->offerStop(wait.mayStop && wait.milliseconds >= stopAfterMilliseconds);
    if (m_panel->parentWidget())
        m_panel->setGeometry(m_panel->parentWidget()->rect());
    paint();
    return !m_stopped;
}

void KorWaitingSign::paint()
{
    // Removes key and mouse events from the queue and drops them. Timers and sockets wait, since their slots may use
    // the database.
    qApp->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers | QEventLoop::X11ExcludeTimers);
    qApp->removeEventFilter(this);
}

void KorWaitingSign::ended()
{
    paint();
    m_stopped = false;
    // It stays visible for calls that follow at once, and ends when timers run again.
    m_end.start(0);
}

void KorWaitingSign::end()
{
    delete m_panel;
    QApplication::restoreOverrideCursor();
    m_busy = false;
}

bool KorWaitingSign::isStop(QEvent* event) const
{
    if (!m_panel || !m_panel->offersStop())
        return false;
    if (event->type() == QEvent::KeyPress)
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (event->type() == QEvent::MouseButtonRelease)
        return m_panel->isStopAt(static_cast<QMouseEvent*>(event)->globalPos());
    if (event->type() != QEvent::TouchEnd)
        return false;
    const QList<QTouchEvent::TouchPoint>& fingers = static_cast<QTouchEvent*>(event)->touchPoints();
    return !fingers.isEmpty() && m_panel->isStopAt(fingers.first().screenPos().toPoint());
}

bool KorWaitingSign::eventFilter(QObject* watched, QEvent* event)
{
    if (isOfCursor(*event))
        return watched->isWidgetType();
    if (!isOfHands(*event))
        return QObject::eventFilter(watched, event);
    m_stopped = m_stopped || isStop(event);
    // Accepted, so that Qt does not turn it into another event.
    event->setAccepted(event->type() != QEvent::Close);
    return true;
}
