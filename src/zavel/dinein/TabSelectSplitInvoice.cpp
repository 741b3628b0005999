#include "zavel/dinein/TabSelectSplitInvoice.h"

#include "app/persistence/AppDocumentLines.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/TableModelSelectSplitInvoice.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

TabSelectSplitInvoice::TabSelectSplitInvoice(const QList<EntityInvoiceMakanDitempat*>& invoices, QWidget* parent)
    : AppTab(parent), m_grid(new QTableView(this)),
      m_model(new TableModelSelectSplitInvoice(asEntities(invoices), this))
{
    m_grid->setObjectName("tblInvoice");
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_grid);
    applyModel(m_grid, m_model);
    m_grid->verticalHeader()->setDefaultSectionSize(40);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_grid->selectRow(0);
    connect(m_grid, &QTableView::activated, this, &TabSelectSplitInvoice::chosen);
    setFocusProxy(m_grid);
}

EntityInvoiceMakanDitempat* TabSelectSplitInvoice::selectedInvoice() const
{
    return static_cast<EntityInvoiceMakanDitempat*>(selectedEntities(m_grid, m_model).value(0));
}
