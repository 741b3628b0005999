#include "sales/payment/TabBayarMakanDitempatDetail.h"

#include "app/persistence/AppDocumentLines.h"
#include "sales/invoice/EntityInvoiceDetail.h"
#include "sales/payment/TableModelBayarMakanDitempatDetail.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

TabBayarMakanDitempatDetail::TabBayarMakanDitempatDetail(QWidget* parent)
    : AppTab(parent), m_grid(new QTableView(this)), m_count(new QLabel(this))
{
    m_grid->setObjectName("tblDetail");
    m_count->setObjectName("lblCount");
    m_grid->horizontalHeader()->setHighlightSections(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->setSpacing(4);
    layout->addWidget(m_grid);
    layout->addWidget(m_count);
}

void TabBayarMakanDitempatDetail::setDetails(const QList<EntityInvoiceDetail*>& details)
{
    m_details = details;
    refresh();
}

bool TabBayarMakanDitempatDetail::hasPendingSplit() const
{
    return std::any_of(m_details.cbegin(), m_details.cend(),
                       [](const EntityInvoiceDetail* line) { return line->qtySplit() > 0; });
}

void TabBayarMakanDitempatDetail::refresh()
{
    // The former model goes without clear(): the lines are not its own.
    delete m_model;
    m_model = new TableModelBayarMakanDitempatDetail(asEntities(m_details), false, this);
    applyModel(m_grid, m_model);
    m_count->setText(tr("%1 Items").arg(m_details.size()));
    emit ItemAdded();
}

void TabBayarMakanDitempatDetail::focusGrid() { m_grid->setFocus(); }
