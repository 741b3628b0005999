#include "pos/inventory/stock/DataMapperStockTake.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"
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
    const QString order = " order by item.id, tanggal, stock_take.id";
    if (code.isEmpty())
        return findMany(order, {});
    return findMany(" where lower(item.kode) = :kode" + order, {{":kode", code.toLower()}});
}

EntityStockTake* DataMapperStockTake::getLastStockTake(const KorEntity* item, const QDate& date)
{
    KorPaging paging;
    paging.addFilter("item_id = ", QString::number(item->getId()));
    paging.addFilter(" and tanggal <= ", dateToSql(date));
    paging.addSort("tanggal", "desc");
    paging.addSort(", stock_take.id", "desc");
    KorQuery query(this);
    if (!execPaging(query, &paging)) {
        setError(query.failure());
        return nullptr;
    }
    return query.next() ? static_cast<EntityStockTake*>(fromRow(query)) : nullptr;
}
