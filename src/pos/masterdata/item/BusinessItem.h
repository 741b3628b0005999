#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/item/EntityItem.h"

class DataMapperGroupedItem;
class DataMapperItem;
class DataMapperStokAwal;

/** The service of items. An item comes with a beginning balance of nothing, and stays while it is a component. */
class BusinessItem final : public AppMasterService<EntityItem>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_ITEM, UPDATE_ITEM, DELETE_ITEM };
    Q_ENUM(PERMISSIONS)

    BusinessItem(QObject* parent, DataMapperItem* items, DataMapperGroupedItem* groupedItems,
                 DataMapperStokAwal* balances);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool insert(KorEntity* item) override;
    bool remove(KorEntity* item) override;

    /** Items with a price, cost or beginning balance in another currency than this sign; -1 with an error. */
    [[nodiscard]] int countOfOtherCurrency(const QString& sign);
    /** Gives all these amounts the sign, all or none; the figures stay. */
    bool restate(const QString& sign);

    // The filter is a part of a code or a name, in lower case.
    /** "jenisCode" is the code of an item type, empty for all. */
    [[nodiscard]] QList<KorEntity*> search(const QString& filter, const QString& jenisCode = QString());
    /** Stock items; the type is the id of an item type, -1 for all. */
    [[nodiscard]] QList<KorEntity*> searchByType(const QString& filter, int type = -1);
    /** Menu and service items; the type as above. */
    [[nodiscard]] QList<KorEntity*> searchServices(const QString& filter, int type = -1);

private:
    DataMapperItem* m_items;
    DataMapperGroupedItem* m_groupedItems;
    DataMapperStokAwal* m_balances;
};
