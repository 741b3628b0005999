#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperItem;
class EntityGroupedItem;
class KorPaging;

/** The components of grouped items, in the table "grouped_item". They are deleted with their parent. */
class DataMapperGroupedItem final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperGroupedItem(QObject* parent, DataMapperItem* items);

    KorEntity* createEntity() override;
    using AppDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;
    bool createTable(int mode) override;
    [[nodiscard]] QStringList indexStatements() const override;

    [[nodiscard]] EntityGroupedItem* findByParentAndItem(int parentId, int itemId);
    /** The rows in which the item is a component, each with its parent's id. */
    [[nodiscard]] QList<EntityGroupedItem*> findParents(int itemId);
    /** The components of the item with the id "parent", whose code or name contains "filter". */
    [[nodiscard]] QList<KorEntity*> search(const KorPaging& criteria);
};
