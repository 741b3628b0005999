#include "pos/masterdata/item/BusinessGroupedItem.h"

#include "kor/persistence/KorPaging.h"
#include "pos/masterdata/item/DataMapperGroupedItem.h"

BusinessGroupedItem::BusinessGroupedItem(QObject* parent, DataMapperGroupedItem* mapper)
    : KorBusinessLogic("Grouped Item", mapper, parent), m_groupedItems(mapper)
{}

QList<KorPermission> BusinessGroupedItem::getPermissions() const
{
    return {{INSERT_GROUPED_ITEM, tr("Insert grouped item")},
            {UPDATE_GROUPED_ITEM, tr("Update grouped item")},
            {DELETE_GROUPED_ITEM, tr("Delete grouped item")}};
}

EntityGroupedItem* BusinessGroupedItem::findByParentAndItem(int parentId, int itemId)
{
    return read(m_groupedItems->findByParentAndItem(parentId, itemId), m_groupedItems,
                "getGroupedItemByParentIdAndItemId");
}

QList<KorEntity*> BusinessGroupedItem::search(const QString& filter, int parentId)
{
    KorPaging criteria;
    criteria.addFilter("parent", QString::number(parentId));
    criteria.addFilter("filter", filter);
    return read(m_groupedItems->search(criteria), m_groupedItems, "search");
}
