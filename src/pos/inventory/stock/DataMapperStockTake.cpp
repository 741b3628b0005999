#include "pos/inventory/stock/DataMapperStockTake.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/inventory/stock/DataMapperStockTakeMigration11.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

DataMapperStockTake::DataMapperStockTake(QObject* parent, DataMapperItem* items, DataMapperJenisItem* types,
                                         DataMapperSatuan* units, DataMapperBank* accounts)
    : AppDataMapper(parent)
{
    setName("stock take");
    metaData()->setTableName("stock_take");
    reference("item_id", "integer not null", "Item", items, "inner");
    column("tanggal", "date not NULL", "StockTakeDate");
    column("qty", "integer not null", "Qty");
    column("reason", "varchar(256) null", "Reason");
    column("qty_before", "integer not null", "QtyBefore");
    column("qty_adj", "integer not null", "QtyAdj");
    column("source_acct_code", "varchar(20) not null", "SourceAcctCode");
    addJoin("Jenis", types, "inner", "item.jenis", "id");
    addJoin("Satuan", units, "inner", "item.satuan", "id");
    addJoin("SourceAccount", accounts, "inner", "source_acct_code", "kode", "source_acc");
}

KorEntity* DataMapperStockTake::createEntity() { return new EntityStockTake(entityParent()); }

QList<KorMigration*> DataMapperStockTake::migrations() { return {new DataMapperStockTakeMigration11(tableName())}; }

QStringList DataMapperStockTake::indexStatements() const
{
    return {index("item_id_tanggal", "(item_id, tanggal desc, id desc)"),
            index("source_acct_code", "(source_acct_code)")};
}

QList<KorEntity*> DataMapperStockTake::findAll(const QString& code)
{
    return findMany(KorConditions()
                        .only("lower(item.kode)", code.toLower())
                        .ascending("item.id")
                        .ascending("tanggal")
                        .ascending("stock_take.id"));
}

EntityStockTake* DataMapperStockTake::getLastStockTake(const KorEntity* item, const QDate& date)
{
    return static_cast<EntityStockTake*>(findOne(KorConditions()
                                                     .equals("item_id", item->getId())
                                                     .between("tanggal", {}, date)
                                                     .descending("tanggal")
                                                     .descending("stock_take.id")));
}
