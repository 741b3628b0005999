#include "pos/cash/settlement/SettlementTab.h"

#include "kor/widgets/KorEntityModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

SettlementTab::SettlementTab(const QString& gridName, QWidget* parent)
    : AppTab(parent), m_grid(new QTableView(this)), m_count(new QLabel(this)), m_buttons(new QHBoxLayout)
{
    m_grid->setObjectName(gridName);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_count->setObjectName("lblCount");
    m_buttons->setSpacing(8);
    m_buttons->addWidget(m_count);
    m_buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(8);
    layout->addWidget(m_grid);
    layout->addLayout(m_buttons);
}

QPushButton* SettlementTab::addButton(const QString& name, const QString& text, const QString& icon,
                                      const QString& shortcut)
{
    auto* button = new QPushButton(QIcon(icon), text, this);
    button->setObjectName(name);
    button->setShortcut(QKeySequence(shortcut));
    button->setToolTip(QString("%1 (%2)").arg(text, shortcut));
    // Return in a field must confirm the form and not press a button of a page.
    button->setAutoDefault(false);
    m_buttons->insertWidget(m_buttons->indexOf(m_count), button);
    return button;
}

void SettlementTab::setLines(const QList<KorEntity*>& lines)
{
    m_lines = lines;
    linesChanged();
}

void SettlementTab::focusGrid() { m_grid->setFocus(); }

QList<KorEntity*> SettlementTab::selectedLines() const { return selectedEntities(m_grid, m_model); }

void SettlementTab::linesChanged()
{
    const int row = m_grid->currentIndex().row();
    // No clear(): it would delete the lines, which do not belong to the model.
    const KorEntityModel* former = m_model;
    m_model = createModel(m_lines);
    applyModel(m_grid, m_model);
    if (!former)
        setColumnWidths(m_grid, m_widths);
    delete former;
    m_grid->selectRow(std::min(std::max(row, 0), m_lines.size() - 1));
    m_count->setText(tr("%1 Items").arg(m_lines.size()));
    emit Paid();
}
