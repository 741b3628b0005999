#include "zavel/kitchen/TabPesananMasuk.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "app/persistence/AppDocumentLines.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorConnectionProbe.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/system/KorFailure.h"
#include "kor/widgets/KorErrorBox.h"
#include "kor/widgets/KorSortFilterProxyModel.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/kitchen/EntityQueue.h"
#include "zavel/kitchen/TableModelQueue.h"
#include "zavel/kitchen/TableModelQueueMenu.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"

#include "ui_TabPesananMasuk.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTimer>

#include <algorithm>
#include <numeric>

namespace
{
constexpr int tickInterval = 10000;
constexpr int choiceHeight = 56;
constexpr int cellPadding = 18;

bool isConnected()
{
    const DatabaseManager* manager = AppContext::instance()->databaseManager();
    return manager && manager->isOpen();
}

/** Keeps the grid's scroll position while its rows are replaced. */
class ScrollKeeper
{
public:
    explicit ScrollKeeper(QTableView* view)
        : m_view(view), m_x(view->horizontalScrollBar()->value()), m_y(view->verticalScrollBar()->value())
    {}
    ~ScrollKeeper()
    {
        m_view->doItemsLayout();
        m_view->horizontalScrollBar()->setValue(m_x);
        m_view->verticalScrollBar()->setValue(m_y);
    }
    Q_DISABLE_COPY(ScrollKeeper)

private:
    QTableView* m_view;
    int m_x;
    int m_y;
};

KorSortFilterProxyModel* proxyOf(const QTableView* view)
{
    return static_cast<KorSortFilterProxyModel*>(view->model());
}

/** Replaces the view's model and deletes the former one. The rows belong to a pool, so they are not deleted here. */
template <class Model>
void replaceModel(QTableView* view, Model** shown, Model* next)
{
    const Model* former = *shown;
    *shown = next;
    proxyOf(view)->setSourceModel(next);
    delete former;
}

template <class Wanted>
void selectRows(QTableView* view, const KorEntityModel* model, const Wanted& isWanted)
{
    QItemSelection rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = proxyOf(view)->mapFromSource(model->index(row, 0));
        if (isWanted(*model->entityAt(row)))
            rows.select(index, index);
    }
    if (rows.isEmpty())
        return;
    view->selectionModel()->setCurrentIndex(rows.first().topLeft(), QItemSelectionModel::NoUpdate);
    view->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/** Makes the rows two text lines high: large enough for a finger and for long names. Returns the font's metrics. */
QFontMetrics scaleRows(QTableView* grid, int points)
{
    QFont font = grid->font();
    font.setPointSize(points);
    grid->setFont(font);
    const QFontMetrics metrics(font);
    grid->verticalHeader()->setDefaultSectionSize(2 * metrics.lineSpacing() + 8);
    return metrics;
}
} // namespace

TabPesananMasuk::TabPesananMasuk(QWidget* parent)
    : AppTab(parent), m_ui(std::make_unique<Ui::TabPesananMasuk>()), m_sales(service<BusinessPenjualan>("Sales")),
      m_probe(new KorConnectionProbe(this)), m_queue(new TableModelQueue({}, this)),
      m_lines(new TableModelQueueMenu(DineOrder, {}, this))
{
    m_ui->setupUi(this);
    m_ui->lblNotUpToDate->hide();
    m_ui->ddlNote->addItems({tr("Out of Stock"), tr("Processed"), tr("Not Enough Stock")});
    // The combo box's default delegate ignores the size hint; the rows have to be large enough for a wet thumb.
    m_ui->ddlNote->setItemDelegate(new QStyledItemDelegate(m_ui->ddlNote));
    for (int row = 0; row < m_ui->ddlNote->count(); ++row)
        m_ui->ddlNote->setItemData(row, QSize(0, choiceHeight), Qt::SizeHintRole);
    setUpGrids();
    const auto* focusFilter = new QShortcut(QKeySequence("Ctrl+F"), this);
    connect(focusFilter, &QShortcut::activated, m_ui->txtFilter, [this] { m_ui->txtFilter->setFocus(); });
    connect(m_ui->txtFilter, &QLineEdit::returnPressed, this, &TabPesananMasuk::autoRefresh);
    connect(m_ui->txtFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            autoRefresh();
    });
    connect(m_probe, &KorConnectionProbe::answered, this, &TabPesananMasuk::serverAnswered);

    auto* timer = new QTimer(this);
    timer->setTimerType(Qt::CoarseTimer);
    connect(timer, &QTimer::timeout, this, &TabPesananMasuk::autoRefresh);
    timer->start(tickInterval);
    refresh(Deselect);
}

TabPesananMasuk::~TabPesananMasuk() = default;

// --- the grids -----------------------------------------------------------------------------------------------------

void TabPesananMasuk::setUpGrids()
{
    applyModel(m_ui->tblQueue, m_queue);
    applyModel(m_ui->tblMenu, m_lines);
    // Touching a header by accident must not sort the orders.
    m_ui->tblQueue->setSortingEnabled(false);
    m_ui->tblQueue->horizontalHeader()->setSectionsClickable(false);
    // When the trail of tables is too long, show its end: the table where the guests are now.
    m_ui->tblQueue->setTextElideMode(Qt::ElideLeft);
    m_ui->tblQueue->setWordWrap(false);
    m_ui->tblQueue->horizontalHeader()->setStretchLastSection(false);
    m_ui->tblQueue->horizontalHeader()->setSectionResizeMode(TableModelQueue::Code, QHeaderView::Stretch);
    for (QTableView* grid : {m_ui->tblQueue, m_ui->tblMenu}) {
        grid->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        grid->horizontalHeader()->setHighlightSections(false);
        grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    }
    m_ui->splitter->setStretchFactor(1, 1);
    connect(m_ui->tblQueue->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TabPesananMasuk::orderChosen);
}

void TabPesananMasuk::scaleGrids()
{
    constexpr int smallest = 13;
    constexpr int largest = 18;
    constexpr int pixelsPerPoint = 105;
    const int pointSize = std::clamp(width() / pixelsPerPoint, smallest, largest);
    if (pointSize == m_pointSize)
        return;
    m_pointSize = pointSize;
    const QFontMetrics queue = scaleRows(m_ui->tblQueue, pointSize + 3);
    const int queueWidth = std::max(queue.horizontalAdvance("Take Away:12 44 minutes"), width() * 3 / 10);
    setColumnWidth(m_ui->tblQueue, TableModelQueue::ElapsedTime, queue.horizontalAdvance("44 minutes") + cellPadding);
    m_ui->splitter->setSizes({queueWidth, width() - queueWidth});

    const QFontMetrics menu = scaleRows(m_ui->tblMenu, pointSize);
    QList<int> widths;
    // Longer texts wrap into the row's second line.
    for (const char* text :
         {"GADO-GD", "Nasi goreng seaf", "Qty", "Bottle", "Not Enough", "gula sedikit", "23-11-2026"})
        widths.append(menu.horizontalAdvance(text) + cellPadding);
    // The remaining width goes to the names of the dishes and the guests' wishes.
    const int room = width() - queueWidth - std::accumulate(widths.cbegin(), widths.cend(), widths.last() + 60);
    widths[TableModelQueueMenu::Name] += std::max(0, room / 2);
    widths[TableModelQueueMenu::Description] += std::max(0, room / 2);
    setColumnWidths(m_ui->tblMenu, widths);
    restoreColumns(m_ui->tblMenu);
}

void TabPesananMasuk::resizeEvent(QResizeEvent* event)
{
    AppTab::resizeEvent(event);
    scaleGrids();
}

// --- keeping up to date --------------------------------------------------------------------------------------------

void TabPesananMasuk::autoRefresh() { refresh(Select); }

void TabPesananMasuk::on_btnRefresh_clicked() { refresh(Deselect); }

void TabPesananMasuk::on_btnClose_clicked() { close(); }

void TabPesananMasuk::refresh(Selection selection)
{
    if (m_busy)
        return;
    const QScopedValueRollback<bool> busy(m_busy, true);
    if (isConnected()) {
        reload(selection);
    } else {
        // Opening the connection here would block the GUI until the server answers.
        m_probe->ask();
        m_ui->tblQueue->viewport()->update();
    }
}

void TabPesananMasuk::serverAnswered(bool reachable)
{
    if (!reachable) {
        const KorFailure lost = KorFailure::of(KorFailure::Lost, {}, {}, {});
        notUpToDate(lost.sentence + ' ' + lost.advice);
    } else if (!m_busy) {
        const QScopedValueRollback<bool> busy(m_busy, true);
        reload(Select);
    }
}

void TabPesananMasuk::reload(Selection selection)
{
    KorErrorScope errors(m_sales);
    EntityPool read;
    QList<EntityQueue*> queue;
    {
        const EntityPoolScope scope(read);
        queue = m_sales->getQueue(m_ui->txtFilter->text().toLower());
    }
    if (errors.failed()) {
        notUpToDate(errors.take());
        return;
    }
    const ScrollKeeper scroll(m_ui->tblQueue);
    replaceModel(m_ui->tblQueue, &m_queue, new TableModelQueue(asEntities(queue), this));
    if (selection == Select)
        selectChosen();
    const QList<EntityQueue*> chosen = chosenOrders();
    showLines(chosen.isEmpty() ? nullptr : chosen.last());
    m_rows.swap(read);
    upToDate();
}

void TabPesananMasuk::upToDate()
{
    m_readAt = QTime::currentTime();
    m_isUpToDate = true;
    m_ui->lblNotUpToDate->hide();
    if (m_lossBox)
        m_lossBox->close();
}

void TabPesananMasuk::notUpToDate(const QString& reason)
{
    if (!m_isUpToDate)
        return;
    m_isUpToDate = false;
    const QString since =
        m_readAt.isValid() ? tr("These are the orders of %1.").arg(m_readAt.toString("HH:mm")) + ' ' : QString();
    m_ui->lblNotUpToDate->setText(since + tr("New ones cannot be read at present. This page tries again by itself."));
    m_ui->lblNotUpToDate->show();
    // If the user is on another page or in a form, only the label on this page is shown.
    if (isVisible() && !QApplication::activeModalWidget())
        m_lossBox = tell(reason);
}

QMessageBox* TabPesananMasuk::tell(const QString& failure)
{
    // Not modal by exec(): the timer's refreshes continue, because nobody may be there to close the box.
    auto* box = new QMessageBox(QMessageBox::Critical, tr("Error"), QString(), QMessageBox::Ok, this);
    KorErrorBox::fill(box, failure);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return box;
}

// --- the selected order --------------------------------------------------------------------------------------------

TabPesananMasuk::Key TabPesananMasuk::keyOf(const EntityQueue& row) { return {row.getType(), row.getId()}; }

QList<EntityQueue*> TabPesananMasuk::chosenOrders() const
{
    QList<EntityQueue*> orders;
    const QList<KorEntity*> rows = selectedEntities(m_ui->tblQueue, m_queue);
    for (KorEntity* row : rows)
        orders.append(static_cast<EntityQueue*>(row));
    return orders;
}

void TabPesananMasuk::on_tblQueue_clicked(const QModelIndex& index)
{
    Q_UNUSED(index)
    orderChosen();
}

void TabPesananMasuk::orderChosen()
{
    if (m_busy)
        return;
    const QList<EntityQueue*> orders = chosenOrders();
    m_chosen.clear();
    for (const EntityQueue* order : orders)
        m_chosen.append(keyOf(*order));
    m_chosenRow = orders.isEmpty() ? -1 : m_queue->entities().indexOf(orders.last());
    showLines(orders.isEmpty() ? nullptr : orders.last());
}

void TabPesananMasuk::selectChosen()
{
    if (m_chosen.isEmpty())
        return;
    // Selected by id, not by row: when an order leaves the queue, those below move up. Only if the selected order has
    // left itself, the order that is now in its row is selected.
    selectRows(m_ui->tblQueue, m_queue,
               [this](const KorEntity& row) { return m_chosen.contains(keyOf(static_cast<const EntityQueue&>(row))); });
    const QList<EntityQueue*> found = chosenOrders();
    if (!found.isEmpty()) {
        m_chosenRow = m_queue->entities().indexOf(found.last());
        return;
    }
    m_chosenRow = std::min(m_chosenRow, m_queue->rowCount() - 1);
    const KorEntity* next = m_queue->entityAt(m_chosenRow);
    if (!next)
        return;
    selectRows(m_ui->tblQueue, m_queue, [next](const KorEntity& row) { return &row == next; });
    m_chosen = {keyOf(*static_cast<const EntityQueue*>(next))};
}

void TabPesananMasuk::showLines(const EntityQueue* row)
{
    const bool isSame = row && keyOf(*row) == m_inHand;
    const QList<int> selected = isSame ? selectedEntityIds(m_ui->tblMenu, m_lines) : QList<int>();
    if (!isSame)
        m_ui->tblMenu->verticalScrollBar()->setValue(0);
    m_inHand = row ? keyOf(*row) : Key();

    const ScrollKeeper scroll(m_ui->tblMenu);
    const EntityOrder::Lines lines = row ? row->getOrder()->getDetails() : EntityOrder::Lines();
    replaceModel(m_ui->tblMenu, &m_lines, new TableModelQueueMenu(m_inHand.first, asEntities(lines), this));
    selectRows(m_ui->tblMenu, m_lines, [&selected](const KorEntity& line) { return selected.contains(line.getId()); });
    m_ui->lblCount->setText(tr("%1 Items").arg(lines.size()));
    m_ui->btnPrint->setEnabled(row);
    m_ui->btnPrintAddition->setEnabled(row);
}

void TabPesananMasuk::on_btnSendStatus_clicked()
{
    if (m_busy)
        return;
    QString failures;
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        KorErrorScope errors(m_sales);
        const QString text = m_ui->ddlNote->currentText();
        const QList<KorEntity*> lines = selectedEntities(m_ui->tblMenu, m_lines);
        for (KorEntity* line : lines) {
            const bool done = m_lines->type() == TakeAwayOrder
                                  ? m_sales->setKitchenStatus(static_cast<EntityBawaPulangDetail*>(line), text)
                                  : m_sales->setKitchenStatus(static_cast<EntityMakanDitempatDetail*>(line), text);
            if (!done && !isConnected())
                break;
        }
        failures = errors.take();
    }
    if (!failures.isEmpty())
        tell(failures);
    refresh(Select);
}

void TabPesananMasuk::on_btnPrint_clicked() { printChosen(false); }

void TabPesananMasuk::on_btnPrintAddition_clicked() { printChosen(true); }

void TabPesananMasuk::printChosen(bool additionsOnly)
{
    if (m_busy)
        return;
    // A printer failure opens a box, and its event loop lets the timer fire: a refresh must not free these records.
    const QScopedValueRollback<bool> busy(m_busy, true);
    const QList<EntityQueue*> orders = chosenOrders();
    for (const EntityQueue* row : orders) {
        const auto kind = static_cast<OrderKind>(row->getType());
        if (additionsOnly)
            SlipRequests::instance()->reprintMenuOrder(kind, row->addition().get());
        else
            SlipRequests::instance()->reprintMenuOrder(kind, row->getOrder());
    }
}
