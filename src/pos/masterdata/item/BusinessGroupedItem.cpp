#include "pos/masterdata/item/BusinessGroupedItem.h"

#include "kor/persistence/KorPaging.h"
#include "pos/masterdata/item/DataMapperGroupedItem.h"
#include "pos/masterdata/item/EntityGroupedItem.h"

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

bool BusinessGroupedItem::consistsOf(int itemId, int componentId)
{
    // Visit each item once: old rows may form a cycle.
    QList<int> items{itemId};
    for (int index = 0; index < items.size(); ++index) {
        if (items[index] == componentId)
            return true;
        const QList<KorEntity*> components = search(QString(), items[index]);
        for (const KorEntity* component : components) {
            const EntityItem* original = static_cast<const EntityGroupedItem*>(component)->getOriginal();
            if (original && !items.contains(original->getId()))
                items.append(original->getId());
        }
    }
    return false;
}
