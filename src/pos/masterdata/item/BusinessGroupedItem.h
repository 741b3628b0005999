#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperGroupedItem;
class EntityGroupedItem;

/** The service of the components of grouped items. */
class BusinessGroupedItem final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_GROUPED_ITEM, UPDATE_GROUPED_ITEM, DELETE_GROUPED_ITEM };
    Q_ENUM(PERMISSIONS)

    BusinessGroupedItem(QObject* parent, DataMapperGroupedItem* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    [[nodiscard]] EntityGroupedItem* findByParentAndItem(int parentId, int itemId);
    /** True if the item is that component, or contains it directly or indirectly. */
    [[nodiscard]] bool consistsOf(int itemId, int componentId);
    [[nodiscard]] QList<KorEntity*> search(const QString& filter, int parentId);

private:
    DataMapperGroupedItem* m_groupedItems;
};
