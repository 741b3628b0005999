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
constexpr int measuredRows = 50;
constexpr int nextLook = 50;
constexpr int mainLoop = 1;

/** What the width of the column follows from: heading, font and first texts, as one number. */
uint textsOf(const QTableView* view, int column)
{
    const QAbstractItemModel* model = view->model();
    uint texts = qHash(view->font().key()) ^ qHash(model->headerData(column, Qt::Horizontal).toString());
    const int rows = std::min(model->rowCount(), measuredRows);
    for (int row = 0; row < rows; ++row)
        texts = 31 * texts + qHash(model->index(row, column).data().toString());
    return texts;
}

/**
 * Fits the columns to headers and first rows, up to a limit. Lists are often empty or short at first: later fits widen
 * columns whose texts have grown, but never narrow one. Measuring texts takes half the time of a refresh, so a column
 * whose texts are the same is left alone.
 */
void fitColumns(QTableView* view, const QVector<int>& formerWidths)
{
    constexpr char fitted[] = "fittedTexts";
    const auto known = view->property(fitted).value<QVector<uint>>();
    QVector<uint> now;
    view->horizontalHeader()->setResizeContentsPrecision(measuredRows);
    const int last = view->model()->columnCount() - 1;
    int room = view->viewport()->width();
    for (int column = 0; column <= last; ++column) {
        now.append(textsOf(view, column));
        if (formerWidths.isEmpty() || now.at(column) != known.value(column)) {
            view->resizeColumnToContents(column);
            view->setColumnWidth(column, std::min(view->columnWidth(column) + cellPadding, widestFirstSight));
        }
        int width = std::max(view->columnWidth(column), formerWidths.value(column));
        // The last column takes the rest; only if the rest is too narrow it gets its own width.
        if (column == last && room >= narrowestRest)
            width = view->horizontalHeader()->minimumSectionSize();
        view->setColumnWidth(column, width);
        room -= width;
    }
    view->setProperty(fitted, QVariant::fromValue(now));
}

/** The width of the heading's text. The header's size hint is larger: it adds room for a sort arrow. */
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

/** The last column takes the rest, unless that is too narrow for its heading. */
void stretchLastColumn(QHeaderView* header, int room)
{
    const int last = header->count() - 1;
    for (int section = 0; section <= last; ++section) {
        // The page stretches another column.
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
    // Not the last column: it takes the rest.
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
/** A grid without a selection: an arrow key selects the current row instead of the one next to it. */
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
        // A form stays modal until its event loop has ended, slightly longer than it is visible.
        if (!window->isModal())
            return false;
        const QWidget* opener = window->parentWidget();
        // A message box whose parent is the window, or that has no parent, may belong to the page.
        if (qobject_cast<const QMessageBox*>(window) && (!opener || opener == page->window()))
            return true;
        // A form may have been opened by another form.
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
        // The page's own slot continues after its last form closes, and ends only when the event loop level is lower.
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
    // As a key event, so that it does exactly what the key does.
    QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier));
}

void KorTab::keyPressEvent(QKeyEvent* event)
{
    // The event was posted: by now a form may be open, or the page may be hidden.
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
        // Keep the list's own order until the user sorts.
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
    // Setting a style sheet makes the grid look up all of its style again, even the same one.
    const QString style = "alternate-background-color: #D4D4D4;background-color: white;";
    if (view->styleSheet() != style)
        view->setStyleSheet(style);
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
    // Without widths the columns keep the width that their rows need.
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
    const int row = model->rowOf(id);
    if (!proxy || row < 0)
        return false;
    view->setCurrentIndex(proxy->mapFromSource(model->index(row, 0)));
    return true;
}
