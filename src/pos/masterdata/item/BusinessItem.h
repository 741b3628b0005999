#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/item/EntityItem.h"

class DataMapperGroupedItem;
class DataMapperItem;
class DataMapperStokAwal;

/** The service of items. A new item gets a beginning balance of zero. A component of another item cannot be deleted. */
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

    /** The number of items whose price, cost or beginning balance has another currency; -1 with an error. */
    [[nodiscard]] int countOfOtherCurrency(const QString& sign);
    /** Sets the currency of all these amounts in one transaction; the numbers do not change. */
    bool restate(const QString& sign);

    // The filter is a part of a code or name, in lower case.
    /** "jenisCode" is the code of an item type; empty for all. */
    [[nodiscard]] QList<KorEntity*> search(const QString& filter, const QString& jenisCode = QString());
    /** Stock items; the type is the id of an item type, or -1 for all. */
    [[nodiscard]] QList<KorEntity*> searchByType(const QString& filter, int type = -1);
    /** Menu and service items; for the type see above. */
    [[nodiscard]] QList<KorEntity*> searchServices(const QString& filter, int type = -1);

private:
    DataMapperItem* m_items;
    DataMapperGroupedItem* m_groupedItems;
    DataMapperStokAwal* m_balances;
};
