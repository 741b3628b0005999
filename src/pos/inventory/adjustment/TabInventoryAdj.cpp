#include "pos/inventory/adjustment/TabInventoryAdj.h"

#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/inventory/stock/ItemFilter.h"

#include <QMessageBox>
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
    if (businessAs<BusinessInventory>()->addInventoryAdjustment(static_cast<EntityStockTake*>(take)))
        return true;
    if (!take->isSaved())
        return false;
    // The adjustment stands without its row in the journal: entered again, it would count twice.
    QMessageBox::critical(
        this, tr("Error"),
        tr("The adjustment is saved, but it is missing on the stock card:\r\n%1").arg(business()->takeErrors()));
    return true;
}

bool TabInventoryAdj::removeEntity(KorEntity* take)
{
    return businessAs<BusinessInventory>()->stockTakeRemove(static_cast<EntityStockTake*>(take));
}

void TabInventoryAdj::modelApplied() { setColumnWidths(grid(), {110, 210, 120, 90, 130, 90}); }
