#include "pos/inventory/adjustment/TabInventoryAdj.h"

#include "app/widgets/UnfinishedSave.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/inventory/stock/ItemFilter.h"

#include <QPushButton>
#include <QTableView>

TabInventoryAdj::TabInventoryAdj(QWidget* parent)
    : AppFamilyTab({tr("Inventory Adjustments"), "tblInventoryAdj", "Inventory"}, parent),
      m_items(itemFilter(*this, *filterLabel()))
{
    connect(m_items, &KorTextBoxExtender::onItemSelected, this, [this] { refresh(); });
    button("btnEdit")->setEnabled(false);
    button("btnEdit")->hide();
    refresh();
}

QString TabInventoryAdj::deleteQuestion(const KorEntity* take) const
{
    return tr("Are you sure you want to delete this item: %1 ?")
        .arg(static_cast<const EntityStockTake*>(take)->getItem()->getNama());
}

QList<KorEntity*> TabInventoryAdj::readRows(const QString& code)
{
    m_items->preventSuggest();
    return AppFamilyTab::readRows(code.trimmed());
}

bool TabInventoryAdj::insertEntity(KorEntity* take)
{
    auto* inventory = businessAs<BusinessInventory>();
    auto* adjustment = static_cast<EntityStockTake*>(take);
    if (inventory->addInventoryAdjustment(adjustment))
        return true;
    if (!inventory->onlyJournalLags())
        return false;
    UnfinishedSave{tr("The adjustment is saved. Please do not enter it again."), tr("its row on the stock card"),
                   tr("Later, delete the adjustment and enter it anew."),
                   [&] { return inventory->finishAdjustment(adjustment); }}
        .offer(this, inventory);
    return true;
}

bool TabInventoryAdj::removeEntity(KorEntity* take)
{
    auto* inventory = businessAs<BusinessInventory>();
    auto* adjustment = static_cast<EntityStockTake*>(take);
    if (inventory->stockTakeRemove(adjustment))
        return true;
    if (!inventory->onlyJournalLags())
        return false;
    UnfinishedSave{tr("The adjustment is deleted."), tr("taking its row off the stock card"), QString(),
                   [&] { return inventory->finishRemoval(adjustment); }}
        .offer(this, inventory);
    return true;
}

void TabInventoryAdj::modelApplied() { setColumnWidths(grid(), {110, 210, 120, 90, 130, 90}); }
