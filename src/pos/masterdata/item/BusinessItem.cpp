#include "pos/masterdata/item/BusinessItem.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceTransaction.h"
#include "kor/persistence/KorPaging.h"
#include "pos/masterdata/item/DataMapperGroupedItem.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/DataMapperStokAwal.h"
#include "pos/masterdata/item/EntityGroupedItem.h"
#include "pos/masterdata/item/EntityStokAwal.h"

namespace
{
/** Fills the search conditions for one class of items. */
void fillClassSearch(KorPaging& criteria, const QString& filter, EntityItem::ItemClass itemClass, int type)
{
    criteria.addFilter("kode", filter);
    criteria.addFilter("nama", filter);
    criteria.addFilter("type", QString::number(itemClass));
    criteria.addFilter("jenis", QString::number(type));
}
} // namespace

BusinessItem::BusinessItem(QObject* parent, DataMapperItem* items, DataMapperGroupedItem* groupedItems,
                           DataMapperStokAwal* balances)
    : AppMasterService("Item", items, parent), m_items(items), m_groupedItems(groupedItems), m_balances(balances)
{}

QList<KorPermission> BusinessItem::getPermissions() const
{
    return {{INSERT_ITEM, tr("Insert item")}, {UPDATE_ITEM, tr("Update item")}, {DELETE_ITEM, tr("Delete item")}};
}

bool BusinessItem::insert(KorEntity* item)
{
    const int formerId = item->getId();
    EntityStokAwal balance;
    balance.setItem(static_cast<EntityItem*>(item));
    balance.setHarga(static_cast<EntityItem*>(item)->getHargaBeli());
    // In one transaction, so that no item exists without a balance, and a failed item can be saved again.
    const bool done = inOneTransaction(*this, "insert", [&] {
        return written(m_items->insert(item), m_items, "insert") &&
               written(m_balances->insert(&balance), m_balances, "insert");
    });
    if (!done)
        item->setId(formerId);
    return done;
}

bool BusinessItem::remove(KorEntity* item)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const auto failed = [this](KorDataMapper* mapper) {
        const bool hasFailed = mapper->hasError();
        takeMapperError(mapper, "remove");
        return hasFailed;
    };
    const auto rows = m_groupedItems->findParents(item->getId());
    if (failed(m_groupedItems))
        return false;
    QStringList parents;
    for (const EntityGroupedItem* row : rows) {
        const auto* parent = static_cast<EntityItem*>(m_items->findById(row->getParent()->getId()));
        if (failed(m_items))
            return false;
        if (parent)
            parents.append(parent->getNama());
    }
    if (parents.isEmpty())
        return KorBusinessLogic::remove(item);
    addError("remove", tr("This item is used by: %1. Please delete it first!").arg(parents.join('\n')));
    return false;
}

int BusinessItem::countOfOtherCurrency(const QString& sign)
{
    return read(m_items->countOfOtherCurrency(sign), m_items, "countOfOtherCurrency");
}

bool BusinessItem::restate(const QString& sign)
{
    return inOneTransaction(*this, "restate", [&] { return written(m_items->restate(sign), m_items, "restate"); });
}

QList<KorEntity*> BusinessItem::search(const QString& filter, const QString& jenisCode)
{
    KorPaging criteria;
    criteria.addFilter("kode", filter);
    criteria.addFilter("nama", filter);
    criteria.addFilter("jenis", jenisCode);
    return read(m_items->search(criteria), m_items, "search");
}

QList<KorEntity*> BusinessItem::searchByType(const QString& filter, int type)
{
    KorPaging criteria;
    fillClassSearch(criteria, filter, EntityItem::INV, type);
    return read(m_items->searchByType(criteria), m_items, "searchByType");
}

QList<KorEntity*> BusinessItem::searchServices(const QString& filter, int type)
{
    KorPaging criteria;
    fillClassSearch(criteria, filter, EntityItem::SRV, type);
    return read(m_items->searchServices(criteria), m_items, "searchServices");
}
