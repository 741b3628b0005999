#include "pos/masterdata/itemtype/TabJenisItem.h"

TabJenisItem::TabJenisItem(QWidget* parent) : AppFamilyTab({tr("Item Types"), "tblJenisItem", "Item Type"}, parent)
{
    refresh();
}

QString TabJenisItem::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this item: %1 ?")
        .arg(static_cast<const EntityJenisItem*>(entity)->getNama());
}
