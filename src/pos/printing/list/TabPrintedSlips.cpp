#include "pos/printing/list/TabPrintedSlips.h"

#include "app/widgets/AppFilterBar.h"
#include "kor/widgets/KorSortFilterProxyModel.h"
#include "pos/printing/list/PrintedSlip.h"
#include "pos/printing/list/SlipWords.h"
#include "pos/printing/list/TableModelPrintedSlips.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipPaper.h"
#include "pos/printing/slips/SlipQueue.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace
{
constexpr int filtersPerRow = 3;
// Orders print several slips at once, one per kitchen, and each changes its state several times.
constexpr int changesTogether = 150;
constexpr int anyChoice = -1;
constexpr int narrowestPaper = 240;
constexpr int widestPaper = 440;
// Below this width the list uses a smaller font, so that its columns fit beside the paper.
constexpr int narrowPage = 900;
constexpr int fewerPoints = 3;
constexpr int cellPadding = 8;
constexpr int markWidth = 30;

/** Sorts by time. The list shows times without the date if it covers only one day. */
class SlipOrder final : public KorSortFilterProxyModel
{
public:
    using KorSortFilterProxyModel::KorSortFilterProxyModel;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        const auto* slips = static_cast<const TableModelPrintedSlips*>(sourceModel());
        if (left.column() == TableModelPrintedSlips::Time)
            return slips->slipAt(left.row())->at < slips->slipAt(right.row())->at;
        return KorSortFilterProxyModel::lessThan(left, right);
    }
};

/** The width of the longest text for a state. */
int widestState(const QFontMetrics& metrics)
{
    int widest = 0;
    for (int state = KeptSlip::Waiting; state <= KeptSlip::Unsent; ++state)
        widest = std::max(widest, metrics.horizontalAdvance(SlipWords::state(static_cast<KeptSlip::State>(state))));
    return widest;
}

QStringList printersThere()
{
    QStringList names;
    const QList<SlipPrinter> printers = SlipSpooler::listPrinters();
    for (const SlipPrinter& printer : printers)
        names.append(printer.name);
    return names;
}
} // namespace

TabPrintedSlips::TabPrintedSlips(QWidget* parent)
    : AppTab(parent), m_filters(new AppFilterBar(filtersPerRow, this)), m_splitter(new QSplitter(Qt::Horizontal, this)),
      m_grid(new QTableView(this)), m_changed(new QTimer(this))
{
    setWindowTitle(tr("Printed Slips"));
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(12, 12, 12, 12);
    page->setSpacing(8);

    makeFilters();
    auto* search = makeButton("btnSearch", tr("Search"), tr("Search (Return)"), "zoom", "Return");
    connect(search, &QPushButton::clicked, this, &TabPrintedSlips::on_btnSearch_clicked);
    auto* top = new QHBoxLayout;
    top->setSpacing(8);
    top->addWidget(m_filters, 1);
    top->addWidget(search, 0, Qt::AlignTop);
    page->addLayout(top);

    m_grid->setObjectName("tblSlips");
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setWordWrap(false);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_splitter->addWidget(m_grid);
    m_splitter->addWidget(makePaper());
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setChildrenCollapsible(false);
    page->addWidget(m_splitter, 1);
    page->addWidget(makeButtons());
    orderKeys();

    const auto* focusFilter = new QShortcut(QKeySequence("Ctrl+F"), this);
    connect(focusFilter, &QShortcut::activated, m_number, [this] { m_number->setFocus(); });
    m_changed->setSingleShot(true);
    m_changed->setInterval(changesTogether);
    connect(m_changed, &QTimer::timeout, this, &TabPrintedSlips::reload);
    connect(SlipArchive::instance(), &SlipArchive::changed, m_changed, QOverload<>::of(&QTimer::start));
    reload();
    askForPrinters();
    m_grid->setFocus();
}

void TabPrintedSlips::orderKeys()
{
    QWidget* before = m_printer;
    for (const char* name :
         {"btnSearch", "tblSlips", "paper", "btnRefresh", "ddlTarget", "btnPrintAgain", "btnClose"}) {
        auto* next = findChild<QWidget*>(name);
        setTabOrder(before, next);
        before = next;
    }
}

TabPrintedSlips::~TabPrintedSlips() { m_model->clear(); }

void TabPrintedSlips::makeFilters()
{
    m_from = m_filters->addDate("dateFrom", tr("From Date :"));
    m_number = m_filters->addText("txtNumber", tr("Number :"));
    AppFilterBar::Rows states{{tr("All"), anyChoice}};
    for (int state = KeptSlip::Waiting; state <= KeptSlip::Unsent; ++state)
        states.append({SlipWords::state(static_cast<KeptSlip::State>(state)), state});
    m_state = m_filters->addChoice("ddlState", tr("State :"), states);
    m_to = m_filters->addDate("dateTo", tr("To Date :"));
    AppFilterBar::Rows kinds{{tr("All"), anyChoice}};
    for (int kind = KeptSlip::Bill; kind <= KeptSlip::Test; ++kind)
        kinds.append({SlipWords::kind(static_cast<KeptSlip::Kind>(kind)), kind});
    m_kind = m_filters->addChoice("ddlKind", tr("Kind :"), kinds);
    m_printer = m_filters->addChoice("ddlPrinter", tr("Printer :"), {{tr("All"), QString()}});
    m_printer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

QWidget* TabPrintedSlips::makePaper()
{
    auto* column = new QWidget(m_splitter);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    m_paper = new SlipPaper(column);
    m_paper->setObjectName("paper");
    m_paper->setAccessibleName(tr("The slip"));
    m_outcome = new QLabel(column);
    m_outcome->setObjectName("lblOutcome");
    m_outcome->setWordWrap(true);
    m_outcome->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_paper, 1);
    layout->addWidget(m_outcome);
    column->setMinimumWidth(narrowestPaper);
    return column;
}

QWidget* TabPrintedSlips::makeButtons()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto* refresh = makeButton("btnRefresh", tr("Refresh"), tr("Refresh (F5)"), "arrow_refresh", "F5");
    auto* close = makeButton("btnClose", tr("Close"), tr("Close (Esc)"), "door_out", "Esc");
    m_again = makeButton("btnPrintAgain", tr("Print Again"),
                         tr("Print the selected slip once more, marked as a copy (F8)"), "printer", "F8");
    m_again->setProperty("actsOnce", true);
    m_count = new QLabel(row);
    m_count->setObjectName("lblCount");
    m_target = new QComboBox(row);
    m_target->setObjectName("ddlTarget");
    m_target->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_target->setMinimumContentsLength(16);
    auto* on = new QLabel(tr("Print on :"), row);
    on->setBuddy(m_target);
    layout->addWidget(refresh);
    layout->addWidget(m_count);
    layout->addStretch(1);
    layout->addWidget(on);
    layout->addWidget(m_target);
    layout->addWidget(m_again);
    layout->addWidget(close);
    connect(refresh, &QPushButton::clicked, this, &TabPrintedSlips::on_btnRefresh_clicked);
    connect(m_again, &QPushButton::clicked, this, &TabPrintedSlips::on_btnPrintAgain_clicked);
    connect(close, &QPushButton::clicked, this, &TabPrintedSlips::on_btnClose_clicked);
    return row;
}

QPushButton* TabPrintedSlips::makeButton(const QString& name, const QString& text, const QString& tip,
                                         const QString& icon, const QString& key)
{
    auto* button = new QPushButton(QIcon(":/icons/" + icon + ".png"), text, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setShortcut(QKeySequence(key));
    return button;
}

KorSortFilterProxyModel* TabPrintedSlips::createProxyModel() { return new SlipOrder(this); }

void TabPrintedSlips::resizeEvent(QResizeEvent* event)
{
    AppTab::resizeEvent(event);
    const int paper = std::clamp(width() / 2 - 155, narrowestPaper, widestPaper);
    m_splitter->setSizes({m_splitter->width() - paper, paper});
    scaleColumns();
}

void TabPrintedSlips::showEvent(QShowEvent* event)
{
    AppTab::showEvent(event);
    // Later, when the style has set the header's font.
    QTimer::singleShot(0, this, &TabPrintedSlips::scaleColumns);
}

void TabPrintedSlips::scaleColumns()
{
    const bool isNarrow = width() < narrowPage;
    QFont letters = font();
    if (isNarrow)
        letters.setPointSizeF(letters.pointSizeF() - fewerPoints);
    m_grid->setFont(letters);
    // The header measures with its own font but draws with its viewport's: set both.
    m_grid->horizontalHeader()->setFont(letters);
    m_grid->horizontalHeader()->viewport()->setFont(letters);
    const QFontMetrics metrics(letters);
    m_grid->verticalHeader()->setDefaultSectionSize(metrics.lineSpacing() + 2 * cellPadding);
    const auto widthOf = [&metrics](const QString& widest) {
        return metrics.horizontalAdvance(widest) + 2 * cellPadding;
    };
    // Time, number and state get what they need; the others share the rest, and the kind is the first to shrink.
    using Model = TableModelPrintedSlips;
    const bool ofOneDay = m_from->date() == m_to->date();
    const int word =
        isNarrow && !ofOneDay ? metrics.horizontalAdvance(SlipWords::state(KeptSlip::Printed)) : widestState(metrics);
    const int state = word + markWidth + 2 * cellPadding;
    QList<int> widths{widthOf(ofOneDay ? "20:58" : "28-11 20:58"),
                      0,
                      widthOf("TRD11260012"),
                      widthOf("Ibu Ratna S"),
                      widthOf("Kasir 2"),
                      widthOf("kasir 2")};
    int room = m_grid->viewport()->width() - state - widths.at(Model::Time) - widths.at(Model::Number);
    const int wanted =
        widthOf("Order recap") + widths.at(Model::Place) + widths.at(Model::Printer) + widths.at(Model::User);
    const double share = std::clamp(double(room) / wanted, 0.2, 2.0);
    for (int column : {Model::Place, Model::Printer, Model::User}) {
        setColumnWidth(m_grid, column, int(widths.at(column) * share));
        widths[column] = m_grid->columnWidth(column);
        room -= widths.at(column);
    }
    widths[Model::Kind] = room;
    setColumnWidths(m_grid, widths);
    restoreColumns(m_grid);
}

// --- the list ------------------------------------------------------------------------------------------------------

void TabPrintedSlips::on_btnSearch_clicked() { reload(); }

void TabPrintedSlips::on_btnRefresh_clicked()
{
    reload();
    askForPrinters();
}

void TabPrintedSlips::on_btnClose_clicked() { close(); }

bool TabPrintedSlips::isWanted(const KeptSlip& slip) const
{
    const auto fits = [](const QComboBox* box, int value) {
        return box->currentData() == anyChoice || box->currentData() == value;
    };
    const QString printer = m_printer->currentData().toString();
    return fits(m_kind, slip.kind) && fits(m_state, slip.state) && (printer.isEmpty() || slip.printer == printer) &&
           slip.number.contains(m_number->text().trimmed(), Qt::CaseInsensitive);
}

void TabPrintedSlips::offerPrinters(const QList<KeptSlip>& slips)
{
    QStringList names;
    const QString wanted = m_printer->currentData().toString();
    for (const KeptSlip& slip : slips) {
        if (!slip.printer.isEmpty() && !names.contains(slip.printer))
            names.append(slip.printer);
    }
    if (!wanted.isEmpty() && !names.contains(wanted))
        names.append(wanted);
    names.sort(Qt::CaseInsensitive);
    const QSignalBlocker quiet(m_printer);
    while (m_printer->count() > 1)
        m_printer->removeItem(1);
    for (const QString& name : qAsConst(names))
        m_printer->addItem(name, name);
    m_printer->setCurrentIndex(std::max(0, m_printer->findData(wanted)));
}

QList<KorEntity*> TabPrintedSlips::readRows()
{
    const QList<KeptSlip> slips = SlipArchive::instance()->slips(m_from->date(), m_to->date());
    offerPrinters(slips);
    QList<KorEntity*> rows;
    for (const KeptSlip& slip : slips) {
        if (isWanted(slip))
            rows.append(new PrintedSlip(slip));
    }
    return rows;
}

void TabPrintedSlips::reload()
{
    if (putOff([this] { reload(); }))
        return;
    const QString inHand = m_shown;
    const int scrolled = m_grid->verticalScrollBar()->value();
    TableModelPrintedSlips* former = m_model;
    m_model = new TableModelPrintedSlips(readRows(), m_from->date() == m_to->date(), this);
    applyModel(m_grid, m_model);
    scaleColumns();
    if (former) {
        former->clear();
        delete former;
    }
    connect(m_grid->selectionModel(), &QItemSelectionModel::selectionChanged, this, &TabPrintedSlips::showChosen);
    select(inHand);
    m_grid->verticalScrollBar()->setValue(scrolled);
    m_count->setText(tr("%1 Slips").arg(m_model->rowCount()));
    showChosen();
}

void TabPrintedSlips::select(const QString& id)
{
    int row = m_model->rowCount() > 0 ? 0 : -1;
    for (int at = 0; at < m_model->rowCount(); ++at) {
        if (m_model->slipAt(at)->id == id)
            row = at;
    }
    const auto* proxy = static_cast<const QSortFilterProxyModel*>(m_grid->model());
    m_grid->setCurrentIndex(row < 0 ? QModelIndex() : proxy->mapFromSource(m_model->index(row, 0)));
}

// --- the selected slip ---------------------------------------------------------------------------------------------

const KeptSlip* TabPrintedSlips::chosen() const
{
    const auto* row = static_cast<const PrintedSlip*>(selectedEntities(m_grid, m_model).value(0));
    return row ? &row->slip() : nullptr;
}

void TabPrintedSlips::showChosen()
{
    const KeptSlip* slip = chosen();
    m_outcome->setText(slip ? SlipWords::outcome(*slip) : QString());
    offerTargets();
    if (!slip) {
        m_shown.clear();
        m_paper->showNothing(tr("No slip is selected."));
    } else if (m_shown != slip->id) {
        m_shown = slip->id;
        const QByteArray bytes = SlipArchive::instance()->bytes(slip->id);
        if (bytes.isEmpty())
            m_paper->showNothing(tr("The slip is empty, or cannot be read."));
        else
            m_paper->showSlip(bytes, slip->columns);
    }
}

void TabPrintedSlips::offerTargets()
{
    const KeptSlip* slip = chosen();
    QStringList names = m_available;
    if (slip && !slip->printer.isEmpty()) {
        names.removeAll(slip->printer);
        names.prepend(slip->printer);
    }
    const bool isSameSlip = slip && slip->id == m_shown;
    const QString target = isSameSlip ? m_target->currentText() : QString();
    m_again->setEnabled(slip && !names.isEmpty());
    // Nothing has changed: do not reset the user's choice.
    if (isSameSlip && names == m_targets)
        return;
    m_targets = names;
    m_target->clear();
    m_target->addItems(names);
    m_target->setCurrentIndex(names.isEmpty() ? -1 : std::max(0, m_target->findText(target)));
}

void TabPrintedSlips::askForPrinters()
{
    const auto names = std::make_shared<QStringList>();
    QThread* asking = QThread::create([names] { *names = printersThere(); });
    connect(asking, &QThread::finished, this, [this, names] {
        m_available = *names;
        offerTargets();
    });
    // The page does not wait for this thread, which may outlive it.
    connect(asking, &QThread::finished, asking, &QObject::deleteLater);
    asking->start();
}

void TabPrintedSlips::on_btnPrintAgain_clicked()
{
    const KeptSlip* slip = chosen();
    if (slip && m_target->currentIndex() >= 0)
        SlipQueue::instance()->printAgain(QString(slip->id), m_target->currentText());
}
