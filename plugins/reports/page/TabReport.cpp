#include "reports/page/TabReport.h"

#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"
#include "kor/widgets/KorTabOrder.h"
#include "reports/output/ReportCsv.h"
#include "reports/output/ReportPaper.h"
#include "reports/output/ReportPlot.h"
#include "reports/page/ReportModel.h"
#include "reports/page/ReportQuestions.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSplitter>
#include <QStandardPaths>
#include <QTableView>
#include <QTimer>

namespace
{
constexpr int listWidth = 240;
constexpr int tickTime = 250;
constexpr int widestColumn = 320;

QPushButton* makeButton(const char* icon, QBoxLayout* line)
{
    auto* button = new QPushButton(QIcon(icon), QString());
    button->setAutoDefault(false);
    line->addWidget(button);
    return button;
}
} // namespace

TabReport::TabReport(ReportSubject subject, Connection connection, QString dateFormat, QWidget* parent)
    : KorTab(parent), m_subject(std::move(subject)), m_connection(std::move(connection)),
      m_dateFormat(std::move(dateFormat))
{
    build();
    retranslate();
    if (!m_subject.reports.isEmpty())
        m_list->setCurrentRow(0);
    QTimer::singleShot(0, m_list, [this] { m_list->setFocus(); });
}

TabReport::~TabReport() = default;

void TabReport::build()
{
    m_list = new QListWidget;
    m_list->setObjectName("reports");
    for (int i = 0; i < m_subject.reports.size(); ++i)
        m_list->addItem(QString());
    m_list->setSpacing(3);
    connect(m_list, &QListWidget::currentRowChanged, this, &TabReport::showReport);
    connect(m_list, &QListWidget::itemActivated, this, &TabReport::runReport);

    m_title = new QLabel;
    QFont large = m_title->font();
    large.setPointSizeF(large.pointSizeF() * 1.35);
    large.setBold(true);
    m_title->setFont(large);
    m_about = new QLabel;
    m_about->setWordWrap(true);
    m_questions = new ReportQuestions;
    connect(m_questions, &ReportQuestions::answered, this, &TabReport::runReport);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    m_show = makeButton(":/icons/search_menu.png", buttons);
    m_show->setObjectName("show");
    m_show->setShortcut(Qt::Key_F5);
    m_cancel = makeButton(":/icons/delete.png", buttons);
    m_cancel->setObjectName("cancel");
    buttons->addStretch();
    m_preview = makeButton(":/icons/zoom.png", buttons);
    m_print = makeButton(":/icons/printer.png", buttons);
    m_print->setShortcut(QKeySequence("Ctrl+Shift+P"));
    m_pdf = makeButton(":/icons/save.png", buttons);
    m_csv = makeButton(":/icons/save.png", buttons);
    m_csv->setObjectName("csv");
    m_pdf->setObjectName("pdf");
    connect(m_show, &QPushButton::clicked, this, &TabReport::runReport);
    connect(m_cancel, &QPushButton::clicked, this, &TabReport::cancelRun);
    connect(m_preview, &QPushButton::clicked, this, &TabReport::preview);
    connect(m_print, &QPushButton::clicked, this, &TabReport::print);
    connect(m_pdf, &QPushButton::clicked, this, [this] {
        const QString file = fileFor(m_pdf->text(), ".pdf", "PDF (*.pdf)");
        if (!file.isEmpty())
            tellSaved(savePdf(file), file);
    });
    connect(m_csv, &QPushButton::clicked, this, [this] {
        const QString file = fileFor(m_csv->text(), ".csv", "CSV (*.csv)");
        if (!file.isEmpty())
            tellSaved(saveCsv(file), file);
    });

    m_progress = new QProgressBar;
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setMaximumHeight(6);
    m_note = new QLabel;
    m_note->setWordWrap(true);
    m_note->setObjectName("note");
    m_plot = new ReportPlot;
    m_plot->hide();
    m_grid = new QTableView;
    m_grid->setObjectName("grid");
    m_model = new ReportModel(this);
    m_grid->setModel(m_model);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setAlternatingRowColors(true);
    m_grid->setWordWrap(false);
    m_grid->setTabKeyNavigation(false);
    m_grid->verticalHeader()->hide();
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_grid->horizontalHeader()->setSortIndicatorShown(true);
    connect(m_grid->horizontalHeader(), &QHeaderView::sortIndicatorChanged, m_model, &ReportModel::sort);
    m_grid->horizontalHeader()->setSectionsClickable(true);

    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(m_plot);
    parts->addWidget(m_grid);
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 3);
    parts->setChildrenCollapsible(false);

    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    right->addWidget(m_title);
    right->addWidget(m_about);
    right->addWidget(m_questions);
    right->addLayout(buttons);
    right->addWidget(m_progress);
    right->addWidget(parts, 1);
    right->addWidget(m_note);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(12, 12, 12, 12);
    page->setSpacing(12);
    page->addWidget(m_list);
    page->addLayout(right, 1);

    m_ticker = new QTimer(this);
    m_ticker->setInterval(tickTime);
    connect(m_ticker, &QTimer::timeout, this, &TabReport::tellProgress);
    m_progress->hide();
}

void TabReport::retranslate()
{
    setWindowTitle(reportText(m_subject.title));
    for (int i = 0; i < m_subject.reports.size(); ++i)
        m_list->item(i)->setText(m_subject.reports.at(i).titleText());
    m_list->setFixedWidth(
        std::max(listWidth, m_list->sizeHintForColumn(0) + 2 * (m_list->frameWidth() + m_list->spacing())));
    const auto word = [](QPushButton* button, const char* text, const char* hint) {
        // setText() removes the shortcut.
        const QKeySequence shortcut = button->shortcut();
        button->setText(reportText(text));
        if (!shortcut.isEmpty())
            button->setShortcut(shortcut);
        const QString key = shortcut.isEmpty() ? QString() : " (" + shortcut.toString(QKeySequence::NativeText) + ')';
        button->setToolTip(reportText(hint) + key);
    };
    word(m_show, QT_TRANSLATE_NOOP("Reports", "Show"), QT_TRANSLATE_NOOP("Reports", "Read the report"));
    word(m_cancel, QT_TRANSLATE_NOOP("Reports", "Cancel"), QT_TRANSLATE_NOOP("Reports", "Stop reading"));
    word(m_preview, QT_TRANSLATE_NOOP("Reports", "Preview"), QT_TRANSLATE_NOOP("Reports", "See the pages"));
    word(m_print, QT_TRANSLATE_NOOP("Reports", "Print"), QT_TRANSLATE_NOOP("Reports", "Print the report"));
    word(m_pdf, QT_TRANSLATE_NOOP("Reports", "PDF"), QT_TRANSLATE_NOOP("Reports", "Save the pages as a file"));
    word(m_csv, QT_TRANSLATE_NOOP("Reports", "CSV"), QT_TRANSLATE_NOOP("Reports", "Save the rows for a spreadsheet"));
    m_questions->retranslate();
    m_model->retranslate();
    if (!m_plot->isHidden())
        m_plot->show(table(), ReportFormat(m_dateFormat));
    if (m_noteWords)
        m_note->setText(m_noteWords().trimmed());
    if (m_current >= 0) {
        m_title->setText(m_subject.reports.at(m_current).titleText());
        m_about->setText(m_subject.reports.at(m_current).aboutText());
    }
}

void TabReport::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    KorTab::changeEvent(event);
}

void TabReport::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        KorTab::keyPressEvent(event);
    } else if (m_run) {
        cancelRun();
    } else {
        close();
    }
}

void TabReport::choose(const QString& reportId)
{
    for (int i = 0; i < m_subject.reports.size(); ++i) {
        if (m_subject.reports.at(i).id == reportId)
            m_list->setCurrentRow(i);
    }
}

const ReportTable& TabReport::table() const { return m_model->table(); }

void TabReport::showReport(int index)
{
    if (index < 0)
        return;
    m_run.reset();
    endRun();
    m_current = index;
    const Report& report = m_subject.reports.at(index);
    m_title->setText(report.titleText());
    m_about->setText(report.aboutText());
    m_questions->ask(report);
    putIntoTabOrder(m_list, m_questions);
    m_model->begin(report, ReportFormat(m_dateFormat));
    m_grid->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_grid->resizeColumnsToContents();
    m_plot->hide();
    showNote([] { return reportText(QT_TRANSLATE_NOOP("Reports", "Press Show (F5) to read the report.")); });
    // Delayed, because a page that is open already is deleted at once.
    QTimer::singleShot(0, this, &TabReport::loadChoices);
    updateButtons();
}

void TabReport::loadChoices()
{
    const Report& report = m_subject.reports.at(m_current);
    QList<ReportStatement> statements{{"select nama_perusahaan from data_perusahaan order by id limit 1", {}}};
    QList<int> boxes{-1};
    for (int i = 0; i < report.parameters.size(); ++i) {
        if (report.parameters.at(i).choicesQuery.isEmpty())
            continue;
        statements.append({report.parameters.at(i).choicesQuery, {}});
        boxes.append(i);
    }
    m_choices = std::make_unique<ReportRun>(m_connection(), statements);
    connect(m_choices.get(), &ReportRun::rows, this, [this, boxes](int statement, const QVector<ReportRow>& rows) {
        if (boxes.at(statement) < 0)
            m_company = rows.first().value(0).toString();
        else
            m_questions->fillChoices(boxes.at(statement), rows);
    });
    connect(m_choices.get(), &ReportRun::failed, this,
            [this](const QString& reason) { showNote([reason] { return reason; }, true); });
    m_choices->start();
}

// --- the run -------------------------------------------------------------------------------------------------------

void TabReport::runReport()
{
    if (m_run || m_current < 0)
        return;
    const Report& report = m_subject.reports.at(m_current);
    m_asked = m_questions->words(m_dateFormat);
    m_model->begin(report, ReportFormat(m_dateFormat));
    m_rowsSoFar = 0;
    m_startedAt = QDateTime::currentMSecsSinceEpoch();
    m_run = std::make_unique<ReportRun>(m_connection(), QList<ReportStatement>{{report.query, m_questions->values()}});
    connect(m_run.get(), &ReportRun::fields, this,
            [this](int, const QStringList& names) { m_model->setFields(names); });
    connect(m_run.get(), &ReportRun::rows, this, [this](int, const QVector<ReportRow>& rows) {
        m_rowsSoFar += rows.size();
        m_model->append(rows);
    });
    connect(m_run.get(), &ReportRun::done, this, [this](bool cutOff) {
        endRun();
        showAnswer(cutOff);
    });
    connect(m_run.get(), &ReportRun::failed, this, [this](const QString& reason) {
        endRun();
        showNote(
            [reason] {
                return reportText(QT_TRANSLATE_NOOP("Reports", "The report could not be read. %1")).arg(reason);
            },
            true);
    });
    connect(m_run.get(), &ReportRun::stopped, this, [this] {
        endRun();
        showNote([] { return reportText(QT_TRANSLATE_NOOP("Reports", "Cancelled.")); });
    });
    m_plot->hide();
    m_progress->show();
    m_ticker->start();
    tellProgress();
    updateButtons();
    m_run->start();
}

void TabReport::cancelRun()
{
    if (m_run)
        m_run->cancel();
}

void TabReport::endRun()
{
    // deleteLater(), since this may run in a slot of the run's own signal.
    if (m_run)
        m_run.release()->deleteLater();
    m_ticker->stop();
    m_progress->hide();
    updateButtons();
}

void TabReport::tellProgress()
{
    const double seconds = (QDateTime::currentMSecsSinceEpoch() - m_startedAt) / 1000.0;
    const QString rows = restaurantLocale().toString(m_rowsSoFar);
    const QString duration = restaurantLocale().toString(seconds, 'f', 1);
    showNote([rows, duration] {
        return reportText(QT_TRANSLATE_NOOP("Reports", "Reading... %1 rows, %2 s")).arg(rows, duration);
    });
}

void TabReport::showAnswer(bool cutOff)
{
    m_model->finish();
    const ReportTable& table = m_model->table();
    m_grid->resizeColumnsToContents();
    // Add some space, as long as all columns stay visible.
    const int room = m_grid->viewport()->width() - m_grid->horizontalHeader()->length();
    const int air = m_model->columnCount() > 0 ? qBound(0, room / m_model->columnCount(), 12) : 0;
    for (int i = 0; i < m_model->columnCount(); ++i)
        m_grid->setColumnWidth(i, qMin(m_grid->columnWidth(i) + air, widestColumn));
    const bool hasPlot = m_plot->show(table, ReportFormat(m_dateFormat));
    m_plot->setVisible(hasPlot);
    const double seconds = (QDateTime::currentMSecsSinceEpoch() - m_startedAt) / 1000.0;
    const QString count = restaurantLocale().toString(cutOff ? ReportRun::maximalRows : table.rowCount());
    const QDateTime readAt = QDateTime::currentDateTime();
    if (table.rowCount() == 0) {
        showNote([] { return reportText(QT_TRANSLATE_NOOP("Reports", "Nothing was found for these questions.")); });
    } else if (cutOff) {
        showNote(
            [count] {
                return reportText(QT_TRANSLATE_NOOP("Reports",
                                                    "Only the first %1 rows are shown, and the totals are theirs "
                                                    "alone. Please ask for a shorter period."))
                    .arg(count);
            },
            true);
    } else {
        showNote([this, count, readAt, seconds] {
            return reportText(QT_TRANSLATE_NOOP("Reports", "%1 rows, read on %2 in %3 s"))
                .arg(count, restaurantLocale().toString(readAt, m_dateFormat + " HH:mm"),
                     restaurantLocale().toString(seconds, 'f', 1));
        });
    }
    updateButtons();
}

void TabReport::showNote(const std::function<QString()>& words, bool isError)
{
    m_noteWords = words;
    m_note->setStyleSheet(isError ? "color: #a32020; font-weight: bold;" : QString());
    m_note->setText(words().trimmed());
}

void TabReport::updateButtons()
{
    const bool running = m_run != nullptr;
    const bool shown = !running && m_model->rowCount() > 0;
    m_show->setEnabled(!running && m_current >= 0);
    m_cancel->setEnabled(running);
    for (QPushButton* button : {m_preview, m_print, m_pdf, m_csv})
        button->setEnabled(shown);
}

// --- paper and files -----------------------------------------------------------------------------------------------

QString TabReport::fileFor(const QString& title, const QString& suffix, const QString& filter)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString file =
        QFileDialog::getSaveFileName(this, title, QDir(folder).filePath(m_model->table().report().id + suffix), filter);
    if (!file.isEmpty() && QFileInfo(file).suffix().isEmpty())
        file += suffix;
    return file;
}

void TabReport::tellSaved(bool good, const QString& fileName)
{
    if (good)
        showNote([fileName] { return reportText(QT_TRANSLATE_NOOP("Reports", "Saved as %1")).arg(fileName); });
    else
        QMessageBox::critical(
            this, reportText(QT_TRANSLATE_NOOP("Reports", "Error")),
            reportText(QT_TRANSLATE_NOOP("Reports", "The file %1 could not be written.")).arg(fileName));
}

bool TabReport::saveCsv(const QString& fileName)
{
    // QSaveFile leaves no partial file if the disk is full.
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && writeReportCsv(table(), file) && file.commit();
}

bool TabReport::savePdf(const QString& fileName)
{
    if (!QFileInfo(QFileInfo(fileName).path()).isWritable())
        return false;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    printer.setDocName(table().report().titleText());
    return paintOn(&printer) && QFileInfo(fileName).size() > 0;
}

bool TabReport::paintOn(QPagedPaintDevice* device)
{
    QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(12, 12, 12, 12),
                       QPageLayout::Millimeter);
    if (table().report().columns.size() > 7)
        layout.setOrientation(QPageLayout::Landscape);
    device->setPageLayout(layout);
    const EntityUser* printedBy = AppContext::instance()->currentUser();
    ReportPaper::Heading heading;
    heading.company = m_company;
    heading.asked = m_asked;
    heading.printed = reportText(QT_TRANSLATE_NOOP("Reports", "Printed %1 by %2"))
                          .arg(restaurantLocale().toString(QDateTime::currentDateTime(), m_dateFormat + " HH:mm"),
                               printedBy ? printedBy->getUserName() : QString());
    return ReportPaper(table(), m_plot->isHidden() ? nullptr : m_plot, ReportFormat(m_dateFormat), heading)
        .print(device);
}

void TabReport::preview()
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, this);
    dialog.setWindowTitle(table().report().titleText());
    dialog.resize(1000, 720);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* paper) { paintOn(paper); });
    dialog.exec();
}

void TabReport::print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(table().report().titleText());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!paintOn(&printer))
        QMessageBox::critical(this, reportText(QT_TRANSLATE_NOOP("Reports", "Error")),
                              reportText(QT_TRANSLATE_NOOP("Reports", "The report could not be printed.")));
}
