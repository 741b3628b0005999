#include "app/widgets/AppLinesTab.h"

#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorEntityModel.h"

#include "ui_LinesPage.h"

#include <QHeaderView>
#include <QMessageBox>

#include <algorithm>

AppLinesTab::AppLinesTab(QWidget* parent) : AppTab(parent), m_ui(std::make_unique<Ui::LinesPage>())
{
    m_ui->setupUi(this);
    setParts({m_ui->tblLines, m_ui->lblCount});
}

AppLinesTab::AppLinesTab(OwnForm, QWidget* parent) : AppTab(parent) {}

AppLinesTab::~AppLinesTab() = default;

void AppLinesTab::setParts(const Parts& parts)
{
    m_parts = parts;
    grid()->horizontalHeader()->setHighlightSections(false);
    // Cut a long name at the column's edge, not at its last blank or dash.
    grid()->setWordWrap(false);
}

void AppLinesTab::setLines(const Lines& lines)
{
    m_lines = lines;
    m_removed.clear();
    linesChanged();
}

void AppLinesTab::replaceLines(const Lines& lines)
{
    for (KorEntity* line : qAsConst(m_lines)) {
        if (!lines.contains(line))
            m_removed.append(line);
    }
    m_lines = lines;
    linesChanged();
}

void AppLinesTab::focusLines() { grid()->setFocus(); }

void AppLinesTab::refresh()
{
    const int row = grid()->currentIndex().row();
    const KorEntityModel* former = m_model;
    m_model = createModel(m_lines);
    applyModel(grid(), m_model);
    setColumnWidths(grid(), columnWidths());
    restoreColumns(grid());
    // No clear(): it would delete the lines, which belong to the document.
    delete former;
    grid()->selectRow(std::min(std::max(row, 0), m_lines.size() - 1));
    m_parts.count->setText(tr("%1 Items").arg(m_lines.size()));
}

void AppLinesTab::linesChanged()
{
    refresh();
    emit ItemAdded();
}

void AppLinesTab::on_btnAdd_clicked() { addLines(); }

bool AppLinesTab::runDialog(KorEntity* line)
{
    const auto dialog = createDialog(m_read, *line);
    dialog->setEntity(line);
    const bool confirmed = dialog->exec() == QDialog::Accepted;
    if (confirmed)
        dialog->getEntity();
    dialogClosed(*dialog);
    return confirmed;
}

void AppLinesTab::addLines()
{
    // Opens a new form after each line until the user cancels.
    for (;;) {
        KorEntity* line = createLine();
        line->setParent(this);
        if (!runDialog(line)) {
            delete line;
            break;
        }
        take(line);
    }
    focusLines();
    emit AddingEnded();
}

void AppLinesTab::take(KorEntity* line)
{
    const auto present = std::find_if(m_lines.cbegin(), m_lines.cend(), [this, line](const KorEntity* other) {
        return subjectOf(*other) == subjectOf(*line);
    });
    if (present == m_lines.cend()) {
        m_lines.append(line);
        linesChanged();
        grid()->selectRow(m_lines.size() - 1);
        return;
    }
    if (QMessageBox::question(this, tr("Question"), updateQuestion().arg(nameOf(*line))) == QMessageBox::Yes)
        takeOver(*present, *line);
    delete line;
    linesChanged();
}

void AppLinesTab::on_btnEdit_clicked()
{
    const Lines selected = selectedLines();
    for (KorEntity* line : selected) {
        if (!runDialog(line))
            break;
        linesChanged();
    }
    focusLines();
}

void AppLinesTab::on_btnDelete_clicked()
{
    const Lines selected = selectedLines();
    for (KorEntity* line : selected) {
        const QString question = tr("Are you sure you want to delete this item: %1 ?").arg(nameOf(*line));
        if (QMessageBox::question(this, tr("Delete"), question) != QMessageBox::Yes)
            continue;
        m_lines.removeOne(line);
        m_removed.append(line);
        linesChanged();
    }
    focusLines();
}

AppLinesTab::Lines AppLinesTab::selectedLines() const { return selectedEntities(grid(), m_model); }

QPushButton* AppLinesTab::addButton(const QString& name, const QString& text, const QString& icon)
{
    auto* extra = new QPushButton(QIcon(icon), text, this);
    extra->setObjectName(name);
    extra->setAutoDefault(false);
    const int place = m_ui->buttonLayout->indexOf(m_ui->lblCount);
    setTabOrder(m_ui->buttonLayout->itemAt(place - 1)->widget(), extra);
    m_ui->buttonLayout->insertWidget(place, extra);
    return extra;
}

void AppLinesTab::takeAddAway()
{
    m_ui->btnAdd->setEnabled(false);
    m_ui->btnAdd->hide();
}
