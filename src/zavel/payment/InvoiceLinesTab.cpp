#include "zavel/payment/InvoiceLinesTab.h"

#include "app/persistence/AppDocumentLines.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "zavel/payment/InvoiceLinesModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

InvoiceLinesTab::InvoiceLinesTab(QWidget* parent)
    : AppTab(parent), m_grid(new QTableView(this)), m_count(new QLabel(this)), m_footer(new QHBoxLayout)
{
    m_grid->setObjectName("tblDetail");
    m_count->setObjectName("lblCount");
    m_grid->horizontalHeader()->setHighlightSections(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->setSpacing(4);
    layout->addWidget(m_grid);
    m_footer->setSpacing(8);
    m_footer->addWidget(m_count);
    layout->addLayout(m_footer);
}

void InvoiceLinesTab::setDetails(const QList<EntityInvoiceDetail*>& details)
{
    m_details = details;
    refresh();
}

void InvoiceLinesTab::refresh()
{
    const int row = m_grid->currentIndex().row();
    // No clear(): the model does not own the lines.
    delete m_model;
    m_model = createModel(asEntities(m_details));
    applyModel(m_grid, m_model);
    setColumnWidths(m_grid, columnWidths());
    restoreColumns(m_grid);
    m_grid->selectRow(qBound(0, row, m_details.size() - 1));
    m_count->setText(tr("%1 Items").arg(m_details.size()));
    emit ItemAdded();
}

QList<EntityInvoiceDetail*> InvoiceLinesTab::selectedLines() const
{
    return castAll<EntityInvoiceDetail>(selectedEntities(m_grid, m_model));
}

QList<int> InvoiceLinesTab::columnWidths() const { return {100, 300, 70, 120, 160}; }

void InvoiceLinesTab::focusGrid() { m_grid->setFocus(); }
