#include "pos/masterdata/item/DataMapperStokAwal.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

DataMapperStokAwal::DataMapperStokAwal(QObject* parent, DataMapperItem* items, DataMapperSatuan* units)
    : AppDataMapper(parent)
{
    setName("stok awal");
    metaData()->setTableName("stok_awal");
    column("item_id", "integer not null UNIQUE", "Item.Id");
    moneyColumns("harga", "Harga");
    column("jumlah", "integer not null", "Jumlah");
    // Qualified on purpose, so that it gives no foreign key: every item has a balance, so no item could be deleted.
    addJoin("Item", items, "inner", "stok_awal.item_id", "id");
    addJoin("Satuan", units, "inner", "item.satuan", "id");
}

KorEntity* DataMapperStokAwal::createEntity() { return new EntityStokAwal(entityParent()); }

bool DataMapperStokAwal::createTable(int mode)
{
    return AppDataMapper::createTable(mode) &&
           ensureForeignKey("stok_awal_item_id_fkey", "item_id", "item", "id", "ON DELETE CASCADE");
}

EntityStokAwal* DataMapperStokAwal::findByItemId(int id)
{
    return static_cast<EntityStokAwal*>(findOne(KorConditions().equals("item.id", id)));
}

QList<KorEntity*> DataMapperStokAwal::findAll(const QString& code)
{
    return findMany(KorConditions().only("lower(item.kode)", code.toLower()).ascending("item.id"));
}

bool DataMapperStokAwal::clearTransactions()
{
    KorQuery query;
    return execute(query, "update stok_awal set harga_amount = 0, jumlah = 0");
}
