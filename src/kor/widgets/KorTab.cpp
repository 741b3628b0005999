#include "kor/widgets/KorTab.h"

#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorButtonKeys.h"
#include "kor/widgets/KorEmptyHint.h"
#include "kor/widgets/KorEntityModel.h"
#include "kor/widgets/KorSortFilterProxyModel.h"
#include "kor/widgets/KorTextGuard.h"
#include "kor/widgets/KorViewMemory.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QResizeEvent>
#include <QStyleOptionHeader>
#include <QTableView>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace
{
constexpr int widestFirstSight = 360;
constexpr int narrowestRest = 110;
constexpr int cellPadding = 16;
constexpr int nextLook = 50;
constexpr int mainLoop = 1;

/**
 * Widths that show headers and the first rows' texts in full, within reason. A list is often empty at first sight, or
 * short: later fits widen what has become longer, and narrow nothing that the eye has got used to.
 */
void fitColumns(QTableView* view, const QVector<int>& formerWidths)
{
    view->horizontalHeader()->setResizeContentsPrecision(50);
    view->resizeColumnsToContents();
    const int last = view->model()->columnCount() - 1;
    int room = view->viewport()->width();
    for (int column = 0; column <= last; ++column) {
        int width =
            std::max(std::min(view->columnWidth(column) + cellPadding, widestFirstSight), formerWidths.value(column));
        // The last column takes what the others leave it, and only where that is too little has a width of its own.
        if (column == last && room >= narrowestRest)
            width = view->horizontalHeader()->minimumSectionSize();
        view->setColumnWidth(column, width);
        room -= width;
    }
}

/** What the words take. The header's own hint keeps room for an arrow as well, in every column. */
int headingWidth(const QHeaderView* header, int column)
{
    constexpr int anyWidth = 1000;
    QStyleOptionHeader option;
    option.initFrom(header);
    option.rect.setWidth(anyWidth);
    const int room = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header).width();
    const QString words = header->model()->headerData(column, Qt::Horizontal).toString();
    return header->fontMetrics().horizontalAdvance(words) + anyWidth - room;
}

/** The last column takes what the others leave it, unless that is too little for its heading. */
void stretchLastColumn(QHeaderView* header, int room)
{
    const int last = header->count() - 1;
    for (int section = 0; section <= last; ++section) {
        // A page that lets another column take the rest.
        if (header->sectionResizeMode(section) == QHeaderView::Stretch)
            return;
    }
    if (last < 0 || header->isSectionHidden(last))
        return;
    const int needed = headingWidth(header, last);
    const bool fits = header->length() - header->sectionSize(last) + needed <= room;
    header->setStretchLastSection(fits);
    if (!fits && header->sectionSize(last) < needed)
        header->resizeSection(last, needed);
}

QVector<int> columnWidths(const QTableView* view)
{
    // The last column is as wide as the others leave it.
    QVector<int> widths;
    for (int column = 0; column < view->horizontalHeader()->count() - 1; ++column)
        widths.append(view->columnWidth(column));
    return widths;
}

QList<int> selectedSourceRows(const QTableView* view)
{
    const auto* proxy = qobject_cast<const QSortFilterProxyModel*>(view->model());
    QModelIndexList selected;
    if (view->selectionModel())
        selected = view->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end(),
              [](const QModelIndex& left, const QModelIndex& right) { return left.row() < right.row(); });
    QList<int> rows;
    for (const QModelIndex& index : qAsConst(selected))
        rows.append(proxy ? proxy->mapToSource(index).row() : index.row());
    return rows;
}
/** A grid without a selection: an arrow begins at the row that has the focus frame rather than beside it. */
bool startsAtCurrentRow(const QTableView* view, const QKeyEvent& key)
{
    const bool isArrow = key.key() == Qt::Key_Down || key.key() == Qt::Key_Up;
    return isArrow && !(key.modifiers() & ~Qt::KeypadModifier) && view->model() && view->model()->rowCount() > 0 &&
           !view->selectionModel()->hasSelection();
}
} // namespace

KorTab::KorTab(QWidget* parent) : QWidget(parent)
{
    KorButtonKeys::watch();
    KorTextGuard::watch();
}

bool KorTab::isBusy(const QWidget* page)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [page](const QWidget* window) {
        // A form is modal until its own loop has ended, a little longer than it is seen.
        if (!window->isModal())
            return false;
        const QWidget* opener = window->parentWidget();
        // A box that belongs to the window, or to nobody, may be the page's word as well.
        if (qobject_cast<const QMessageBox*>(window) && (!opener || opener == page->window()))
            return true;
        // Forms open forms.
        while (opener && opener != page)
            opener = opener->parentWidget();
        return opener != nullptr;
    });
}

bool KorTab::putOff(const QWidget* page, QObject* context, const std::function<void()>& work)
{
    if (!isBusy(page))
        return false;
    doOnceFree(page, context, QThread::currentThread()->loopLevel(), work);
    return true;
}

void KorTab::doOnceFree(const QPointer<const QWidget>& page, QObject* context, int level,
                        const std::function<void()>& work)
{
    QTimer::singleShot(nextLook, context, [page, context, level, work] {
        // What the page was doing ends behind its last form, and only then has left the loop that this came from.
        const int now = QThread::currentThread()->loopLevel();
        if (page && (isBusy(page) || (now >= level && now > mainLoop)))
            doOnceFree(page, context, std::min(level, now), work);
        else
            work();
    });
}

void KorTab::close()
{
    emit onclose(this);
    QWidget::close();
}

void KorTab::doubleClickedSlot(const QModelIndex& index)
{
    Q_UNUSED(index)
    // Through the shortcut's own road, so that it does exactly what the key does.
    QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier));
}

void KorTab::keyPressEvent(QKeyEvent* event)
{
    // What was posted comes late: by now a form may be open, or the page be gone.
    if (KorButtonKeys::isBlocked(this) || (window()->isVisible() && !isVisible()))
        return;
    const QList<QAbstractButton*> buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (event->key() == Qt::Key_F2 && button->shortcut() == QKeySequence(Qt::Key_F2)) {
            button->click();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

KorSortFilterProxyModel* KorTab::createProxyModel() { return new KorSortFilterProxyModel(this); }

void KorTab::applyModel(QTableView* view, KorEntityModel* model)
{
    QAbstractItemModel* formerModel = view->model();
    QItemSelectionModel* formerSelection = view->selectionModel();
    const bool firstTime = !formerModel || formerModel->columnCount() != model->columnCount();
    const QByteArray header = view->horizontalHeader()->saveState();
    const QVector<int> formerWidths = firstTime ? QVector<int>() : columnWidths(view);

    view->setSortingEnabled(true);
    view->horizontalHeader()->setStretchLastSection(true);
    view->verticalHeader()->hide();
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setTabKeyNavigation(false);
    view->installEventFilter(this);
    view->horizontalHeader()->installEventFilter(this);
    if (!formerModel) {
        connect(view->horizontalHeader(), &QHeaderView::sectionResized, this, [view](int section) {
            if (section < view->horizontalHeader()->count() - 1)
                stretchLastColumn(view->horizontalHeader(), view->viewport()->width());
        });
    }

    KorSortFilterProxyModel* proxy = createProxyModel();
    proxy->setSourceModel(model);
    if (firstTime) {
        // Rows stand in the order of the list until somebody asks for another.
        view->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    }
    view->setModel(proxy);
    view->reset();
    if (!firstTime)
        view->horizontalHeader()->restoreState(header);
    fitColumns(view, formerWidths);
    stretchLastColumn(view->horizontalHeader(), view->viewport()->width());
    delete formerSelection;
    if (qobject_cast<KorSortFilterProxyModel*>(formerModel))
        delete formerModel;

    connect(view, &QTableView::doubleClicked, this, &KorTab::doubleClickedSlot, Qt::UniqueConnection);
    view->setAlternatingRowColors(true);
    view->setStyleSheet("alternate-background-color: #D4D4D4;background-color: white;");
    KorEmptyHint::attach(view);
    restoreColumns(view);
}

bool KorTab::eventFilter(QObject* watched, QEvent* event)
{
    auto* header = qobject_cast<QHeaderView*>(watched);
    if (header && event->type() == QEvent::Resize)
        stretchLastColumn(header, static_cast<QResizeEvent*>(event)->size().width());
    auto* view = qobject_cast<QTableView*>(watched);
    if (view && event->type() == QEvent::KeyPress && startsAtCurrentRow(view, *static_cast<QKeyEvent*>(event))) {
        view->selectRow(std::max(0, view->currentIndex().row()));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void KorTab::restoreColumns(QTableView* view)
{
    KorViewMemory::restoreColumns(view, QLatin1String(metaObject()->className()));
}

void KorTab::setColumnWidths(QTableView* view, const QList<int>& widths)
{
    // Without widths of its own a page leaves the columns as wide as their rows need.
    if (widths.isEmpty())
        return;
    for (int column = 0; column < widths.size(); ++column)
        setColumnWidth(view, column, widths.at(column));
    view->setColumnWidth(widths.size(), view->horizontalHeader()->minimumSectionSize());
    stretchLastColumn(view->horizontalHeader(), view->viewport()->width());
}

void KorTab::setColumnWidth(QTableView* view, int column, int width)
{
    view->setColumnWidth(column, std::max(width, headingWidth(view->horizontalHeader(), column)));
}

QList<int> KorTab::selectedIds(const QTableView* view, const KorEntityModel* model)
{
    QList<int> ids;
    for (int row : selectedSourceRows(view))
        ids.append(model->data(model->index(row, 0), Qt::DisplayRole).toInt());
    return ids;
}

QList<int> KorTab::selectedEntityIds(const QTableView* view, const KorEntityModel* model)
{
    QList<int> ids;
    for (int row : selectedSourceRows(view))
        ids.append(model->entityId(row));
    return ids;
}

QList<KorEntity*> KorTab::selectedEntities(const QTableView* view, const KorEntityModel* model)
{
    QList<KorEntity*> entities;
    for (int row : selectedSourceRows(view)) {
        if (KorEntity* entity = model->entityAt(row))
            entities.append(entity);
    }
    return entities;
}

bool KorTab::selectEntity(QTableView* view, const KorEntityModel* model, int id)
{
    const auto* proxy = qobject_cast<const QSortFilterProxyModel*>(view->model());
    const KorEntity* entity = model->find(id);
    if (!proxy || !entity)
        return false;
    const int row = model->entities().indexOf(const_cast<KorEntity*>(entity));
    view->setCurrentIndex(proxy->mapFromSource(model->index(row, 0)));
    return true;
}
