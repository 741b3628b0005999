#include "kor/widgets/KorTextBoxExtender.h"

#include "kor/widgets/KorButtonKeys.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>

namespace
{
constexpr int searchDelay = 500;
constexpr int visibleRows = 10;
constexpr int extraHeight = 20;
constexpr int extraWidth = 10;

bool isEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

bool endsTheChoice(const QKeyEvent& key) { return isEnter(key) || key.key() == Qt::Key_Escape; }
} // namespace

KorTextBoxExtender::KorTextBoxExtender(QLineEdit* editor, KorBusinessLogic* business)
    : QWidget(editor), m_business(business), m_editor(editor), m_popup(std::make_unique<QTreeWidget>()),
      m_timer(new QTimer(this))
{
    // A child of the field that must not cover its text.
    hide();

    m_popup->setWindowFlags(Qt::Popup);
    m_popup->setFocusPolicy(Qt::NoFocus);
    m_popup->setFocusProxy(editor);
    m_popup->setMouseTracking(true);
    m_popup->setColumnCount(2);
    m_popup->setUniformRowHeights(true);
    m_popup->setRootIsDecorated(false);
    m_popup->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_popup->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_popup->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_popup->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_popup->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_popup->header()->hide();
    m_popup->installEventFilter(this);
    connect(m_popup.get(), &QTreeWidget::itemClicked, this, &KorTextBoxExtender::doneCompletion);

    m_timer->setSingleShot(true);
    m_timer->setInterval(searchDelay);
    connect(m_timer, &QTimer::timeout, this, [this] {
        // Show no list over a form that has opened meanwhile, or after the focus has moved.
        if (!KorButtonKeys::isBlocked(m_editor) && m_editor->window()->focusWidget() == m_editor)
            autoSuggest();
    });
    editor->installEventFilter(this);
    connect(editor, &QLineEdit::textEdited, m_timer, qOverload<>(&QTimer::start));
    connect(this, &KorTextBoxExtender::onSearchComplete, this, &KorTextBoxExtender::searchComplete);
}

KorTextBoxExtender::~KorTextBoxExtender() = default;

void KorTextBoxExtender::search(const QString& text)
{
    Q_UNUSED(text)
    emit onSearchComplete();
}

QVariant KorTextBoxExtender::rowText(int row, int column) const
{
    Q_UNUSED(row)
    Q_UNUSED(column)
    return QString();
}

QString KorTextBoxExtender::selectedText(int row) const
{
    return m_result ? m_result->data(m_result->index(row, 0)).toString() : QString();
}

void KorTextBoxExtender::rowChosen(int row) { Q_UNUSED(row) }

void KorTextBoxExtender::setColumnCount(int count)
{
    m_columnCount = count;
    m_popup->setColumnCount(count);
}

void KorTextBoxExtender::setHeaderLabels(const QStringList& labels)
{
    m_popup->header()->show();
    m_popup->setHeaderLabels(labels);
}

void KorTextBoxExtender::setResult(QAbstractItemModel* result) { m_result = result; }

void KorTextBoxExtender::preventSuggest() { m_timer->stop(); }

void KorTextBoxExtender::autoSuggest() { search(m_editor->text()); }

void KorTextBoxExtender::searchComplete()
{
    m_popup->setPalette(m_editor->palette());
    m_popup->setUpdatesEnabled(false);
    // A stretched column would report its last width instead of the width it needs.
    m_popup->header()->setStretchLastSection(false);
    fillPopup();
    m_popup->adjustSize();
    m_popup->setUpdatesEnabled(true);
    placePopup();
    m_popup->setFocus();
    m_popup->show();
}

void KorTextBoxExtender::fillPopup()
{
    m_popup->clear();
    if (m_rowCount <= 0) {
        auto* item = new QTreeWidgetItem(m_popup.get());
        item->setText(0, tr("No result"));
        item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
        m_popup->resizeColumnToContents(0);
        m_rowCount = 1;
        return;
    }
    QList<QTreeWidgetItem*> items;
    items.reserve(m_rowCount);
    for (int row = 0; row < m_rowCount; ++row) {
        auto* item = new QTreeWidgetItem;
        for (int column = 0; column < m_columnCount; ++column)
            item->setText(column, rowText(row, column).toString());
        items.append(item);
    }
    m_popup->addTopLevelItems(items);
    m_popup->setCurrentItem(items.first());
    for (int column = 0; column < m_columnCount; ++column)
        m_popup->resizeColumnToContents(column);
}

void KorTextBoxExtender::placePopup()
{
    const int rowHeight = m_popup->visualItemRect(m_popup->topLevelItem(0)).height();
    const int scrollBar = m_rowCount > visibleRows ? m_popup->verticalScrollBar()->sizeHint().width() : 0;
    m_popup->resize(m_popup->width() + scrollBar + extraWidth, visibleRows * rowHeight + extraHeight);
    m_popup->header()->setStretchLastSection(true);

    QPoint corner = m_editor->mapToGlobal(QPoint(0, m_editor->height()));
    const QRect screen = m_editor->screen()->availableGeometry();
    // Above the field if there is no room below.
    const int above = corner.y() - m_editor->height() - m_popup->height();
    if (corner.y() + m_popup->height() > screen.bottom() && above >= screen.top())
        corner.setY(above);
    m_popup->move(corner);
}

void KorTextBoxExtender::doneCompletion()
{
    m_timer->stop();
    m_popup->hide();
    m_editor->setFocus();
    choose(m_popup->currentIndex().row());
}

void KorTextBoxExtender::choose(int row)
{
    m_currentRow = -1;
    m_currentRow = row;
    rowChosen(m_currentRow);
    m_editor->setText(selectedText(m_currentRow));
    // The slot for returnPressed may close the form and delete this object.
    const QPointer<KorTextBoxExtender> alive(this);
    QMetaObject::invokeMethod(m_editor, "returnPressed");
    if (!alive)
        return;
    if (m_nextWidget)
        m_nextWidget->setFocus();
    emit onItemSelected();
}

bool KorTextBoxExtender::eventFilter(QObject* watched, QEvent* event)
{
    // While the list is open, these keys belong to it and must not press the page's search or close button.
    if (event->type() == QEvent::ShortcutOverride && m_popup->isVisible() &&
        endsTheChoice(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (watched == m_editor && event->type() == QEvent::ShortcutOverride && m_timer->isActive() &&
        wantsEnter(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (watched == m_editor && event->type() == QEvent::KeyPress && wantsEnter(*static_cast<QKeyEvent*>(event))) {
        takeTyped();
        return true;
    }
    if (watched == m_editor && event->type() == QEvent::FocusOut) {
        // After the focus has moved on, the list would be in the way and take the keys of the next field.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason)
            m_timer->stop();
    }
    if (watched != m_popup.get())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) {
        m_popup->hide();
        m_editor->setFocus();
        return true;
    }
    return event->type() == QEvent::KeyPress && popupKey(static_cast<QKeyEvent*>(event));
}

bool KorTextBoxExtender::wantsEnter(const QKeyEvent& key) const
{
    return isEnter(key) && (m_timer->isActive() || (m_taker && !m_isTaken())) && !m_editor->text().isEmpty();
}

void KorTextBoxExtender::takeTyped()
{
    m_timer->stop();
    if (m_taker) {
        if (!m_taker())
            autoSuggest();
        else if (m_nextWidget && m_isTaken())
            m_nextWidget->setFocus(Qt::TabFocusReason);
        return;
    }
    const int row = findExact(m_editor->text());
    if (row < 0)
        searchComplete();
    else
        choose(row);
}

int KorTextBoxExtender::findExact(const QString& text)
{
    Q_UNUSED(text)
    return -1;
}

bool KorTextBoxExtender::popupKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return false;
    case Qt::Key_Escape:
        m_editor->setFocus();
        m_popup->hide();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Hides the list and returns the focus before the form is notified of the choice.
        doneCompletion();
        return true;
    default:
        m_editor->setFocus();
        m_editor->event(event);
        m_popup->hide();
        return true;
    }
}
