#include "pos/inventory/balance/TabStokAwal.h"

#include "pos/inventory/stock/ItemFilter.h"
#include "pos/masterdata/item/EntityStokAwal.h"

#include <QPushButton>
#include <QTableView>

TabStokAwal::TabStokAwal(QWidget* parent)
    : AppFamilyTab({tr("Beginning Balances"), "tblStokAwal", "Beginning Balance"}, parent),
      m_items(itemFilter(*this, *filterLabel()))
{
    connect(m_items, &KorTextBoxExtender::onItemSelected, this, [this] { refresh(); });
    button("btnDelete")->setEnabled(false);
    button("btnDelete")->hide();
    refresh();
}

QList<KorEntity*> TabStokAwal::readRows(const QString& code)
{
    m_items->preventSuggest();
    return AppFamilyTab::readRows(code.trimmed());
}

bool TabStokAwal::insertEntity(KorEntity* balance)
{
    return businessAs<BusinessStokAwal>()->enter(static_cast<EntityStokAwal*>(balance));
}

void TabStokAwal::modelApplied() { setColumnWidths(grid(), {130, 300, 90, 130, 150}); }
