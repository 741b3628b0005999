#include "pos/masterdata/item/DataMapperGroupedItem.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/EntityGroupedItem.h"

DataMapperGroupedItem::DataMapperGroupedItem(QObject* parent, DataMapperItem* items) : AppDataMapper(parent)
{
    setName("grouped item");
    metaData()->setTableName("grouped_item");
    column("parent_id", "integer not null", "Parent.Id");
    reference("original_item_id", "integer not null", "Original", items, "inner");
    column("jumlah", "integer not null", "Jumlah");
}

KorEntity* DataMapperGroupedItem::createEntity() { return new EntityGroupedItem(entityParent()); }

KorEntity* DataMapperGroupedItem::fillFromRow(KorQuery& query, KorEntity* entity)
{
    AppDataMapper::fillFromRow(query, entity);
    auto* parent = new EntityItem(entity);
    parent->setId(query.field("grouped_item_parent_id").toInt());
    static_cast<EntityGroupedItem*>(entity)->setParentItem(parent);
    return entity;
}

bool DataMapperGroupedItem::createTable(int mode)
{
    return AppDataMapper::createTable(mode) &&
           ensureForeignKey("grouped_item_parent_id_fkey", "parent_id", "item", "id", "ON DELETE CASCADE");
}

QStringList DataMapperGroupedItem::indexStatements() const
{
    return {index("parent_id", "(parent_id)"), index("original_item_id", "(original_item_id)")};
}

EntityGroupedItem* DataMapperGroupedItem::findByParentAndItem(int parentId, int itemId)
{
    return static_cast<EntityGroupedItem*>(
        findOne(KorConditions().equals("parent_id", parentId).equals("original_item_id", itemId)));
}

QList<EntityGroupedItem*> DataMapperGroupedItem::findParents(int itemId)
{
    return castAll<EntityGroupedItem>(findMany(KorConditions().equals("original_item_id", itemId)));
}

QList<KorEntity*> DataMapperGroupedItem::search(const KorPaging& criteria)
{
    return findMany(KorConditions()
                        .equals("parent_id", criteria.filterValue("parent"))
                        .contains({"lower(item.kode)", "lower(item.nama)"}, criteria.filterValue("filter"))
                        .ascending("grouped_item.id"));
}
