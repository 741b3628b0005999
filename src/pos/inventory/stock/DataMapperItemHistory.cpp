#include "pos/inventory/stock/DataMapperItemHistory.h"

#include "app/context/EntityPool.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorBatch.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

DataMapperItemHistory::DataMapperItemHistory(QObject* parent, DataMapperItem* items, DataMapperJenisItem* types,
                                             DataMapperSatuan* units)
    : AppDataMapper(parent)
{
    setName("item history");
    metaData()->setTableName("item_history");
    column("trans_date", "date not null", "Date");
    reference("item_id", "integer not null", "Item", items, "inner");
    column("qty_in", "integer not null", "QtyIn");
    column("qty_out", "integer not null", "QtyOut");
    column("qty_remain", "integer not null", "QtyRemain");
    moneyColumns("unit_price", "UnitPrice");
    column("tran_type", "integer not null", "TransType");
    column("tran_id", "integer not null", "IdTrans");
    column("no", "varchar(50) null", "No");
    addJoin("Jenis", types, "inner", "item.jenis", "id");
    addJoin("Satuan", units, "inner", "item.satuan", "id");
}

KorEntity* DataMapperItemHistory::createEntity() { return new EntityItemHistory(entityParent()); }

QStringList DataMapperItemHistory::indexStatements() const
{
    return {index("item_id_trans_date", "(item_id, trans_date, id)"), index("tran", "(tran_id, tran_type)")};
}

EntityItemHistory* DataMapperItemHistory::findByTrans(int transType, int transId)
{
    return static_cast<EntityItemHistory*>(
        findOne(KorConditions().equals("tran_type", transType).equals("tran_id", transId)));
}

QList<EntityItemHistory*> DataMapperItemHistory::findAll(const ItemHistoryFilter& filter)
{
    return castAll<EntityItemHistory>(findMany(KorConditions()
                                                   .between("trans_date", filter.startDate, filter.endDate)
                                                   .only("item_id", filter.itemId)
                                                   .ascending("trans_date")
                                                   .ascending("item_history.id")));
}

void DataMapperItemHistory::fill(EntityItemHistory& row, const ItemMovement& movement)
{
    row.setTransType(movement.transType);
    row.setIdTrans(movement.lineId);
    row.setItem(movement.item);
    row.setQtyIn(movement.quantityIn);
    row.setQtyOut(movement.quantityOut);
    // An item without a price must be on the card, too.
    row.setUnitPrice(movement.unitPrice ? movement.unitPrice : new Money(&row, 0, QString()));
    row.setDate(movement.date);
    row.setNo(movement.number);
}

bool DataMapperItemHistory::add(const ItemMovement& movement)
{
    EntityItemHistory row;
    fill(row, movement);
    return insert(&row);
}

bool DataMapperItemHistory::addAll(const QList<ItemMovement>& movements)
{
    QObject rows;
    QList<KorEntity*> all;
    for (const ItemMovement& movement : movements) {
        auto* row = new EntityItemHistory(&rows);
        fill(*row, movement);
        all.append(row);
    }
    KorBatch batch;
    insertWith(batch, all);
    if (!batch.send())
        setError(batch.failures().first());
    return batch.failures().isEmpty();
}

bool DataMapperItemHistory::write(const ItemMovement& movement)
{
    EntityPool read;
    const EntityPoolScope scope(read);
    clearError();
    EntityItemHistory* row = findByTrans(movement.transType, movement.lineId);
    if (hasError())
        return false;
    if (!row)
        return add(movement);
    fill(*row, movement);
    return update(row);
}

bool DataMapperItemHistory::removeLine(int transType, int lineId)
{
    EntityPool read;
    const EntityPoolScope scope(read);
    clearError();
    EntityItemHistory* row = findByTrans(transType, lineId);
    if (hasError())
        return false;
    return !row || remove(row);
}
