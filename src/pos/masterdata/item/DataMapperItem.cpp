#include "pos/masterdata/item/DataMapperItem.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/item/EntityItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

#include <QDebug>

namespace
{
/** The items whose code or name contains the text of the criteria. */
KorConditions withTextOf(const KorPaging& criteria)
{
    const auto holding = [&criteria](const QString& key) {
        return QPair<QString, QString>("lower(item." + key + ") like", '%' + criteria.filterValue(key).toLower() + '%');
    };
    return KorConditions().anyOf({holding("kode"), holding("nama")});
}
} // namespace

DataMapperItem::DataMapperItem(QObject* parent, DataMapperJenisItem* types, DataMapperSatuan* units,
                               DataMapperBank* accounts)
    : AppMasterMapper(parent)
{
    setName("item");
    metaData()->setTableName("item");
    column("kode", "varchar(100) not null UNIQUE", "Kode");
    column("item_type", "integer not null", "ItemType");
    column("is_group", "boolean not null", "IsGroup");
    column("nama", "varchar(200) not null", "Nama");
    reference("jenis", "integer not null", "Jenis", types, "inner");
    reference("satuan", "integer not null", "Satuan", units, "inner");
    moneyColumns("harga_beli", "HargaBeli");
    moneyColumns("harga_jual_lokal", "HargaJualLokal");
    moneyColumns("harga_jual_luar", "HargaJualLuar", "null");
    column("notes", "text null", "Notes");
    column("sales_acct_code", "varchar(20) not null", "SalesAcctCode");
    column("inventory_acct_code", "varchar(20) not null", "InventoryAcctCode");
    column("cost_of_sales_acct_code", "varchar(20) not null", "CostOfSalesAcctCode");

    // Qualified on purpose, so that the joins give no foreign keys: createTable() adds them with their own names.
    addJoin("SalesAccount", accounts, "inner", "item.sales_acct_code", "kode", "sales_acc");
    addJoin("InventoryAccount", accounts, "inner", "item.inventory_acct_code", "kode", "inv_acc");
    addJoin("CostOfSalesAccount", accounts, "inner", "item.cost_of_sales_acct_code", "kode", "cost_sales_acc");
}

KorEntity* DataMapperItem::createEntity() { return new EntityItem(entityParent()); }

bool DataMapperItem::createTable(int mode)
{
    return AppMasterMapper::createTable(mode) && ensureForeignKey("sales_acc", "sales_acct_code", "bank", "kode") &&
           ensureForeignKey("inv_acc", "inventory_acct_code", "bank", "kode") &&
           ensureForeignKey("cost_sales_acc", "cost_of_sales_acct_code", "bank", "kode");
}

QStringList DataMapperItem::indexStatements() const
{
    return {index("jenis", "(jenis)"), index("satuan", "(satuan)"), index("sales_acct_code", "(sales_acct_code)"),
            index("inventory_acct_code", "(inventory_acct_code)"),
            index("cost_of_sales_acct_code", "(cost_of_sales_acct_code)")};
}

QList<KorEntity*> DataMapperItem::search(const KorPaging& criteria)
{
    KorPaging paging;
    withTextOf(criteria).only("jenis_item.kode", criteria.filterValue("jenis")).ascending("item.id").fill(paging);
    qDebug().noquote() << "search item:" << selectStatement() + paging.clauses();
    return find(&paging);
}

QList<KorEntity*> DataMapperItem::searchByType(const KorPaging& criteria) { return searchClass(criteria); }

QList<KorEntity*> DataMapperItem::searchServices(const KorPaging& criteria) { return searchClass(criteria); }

QList<KorEntity*> DataMapperItem::searchClass(const KorPaging& criteria)
{
    const QString type = criteria.filterValue("jenis");
    return findMany(withTextOf(criteria)
                        .equals("item_type", criteria.filterValue("type"))
                        .only("jenis", type == "-1" ? QString() : type)
                        .ascending("item.id"));
}

int DataMapperItem::countOfOtherCurrency(const QString& sign)
{
    KorQuery query;
    const bool read =
        execute(query,
                "select count(*) from item left join stok_awal on stok_awal.item_id = item.id where :sign <> any "
                "(array[harga_beli_currency, harga_jual_lokal_currency, coalesce(harga_jual_luar_currency, :sign), "
                "coalesce(harga_currency, :sign)])",
                {{":sign", sign}}) &&
        query.next();
    return read ? query.value(0).toInt() : -1;
}

bool DataMapperItem::restate(const QString& sign)
{
    KorQuery items;
    KorQuery balances;
    // Changing the rows also changes their versions, so that an open form of such an item cannot be saved.
    return execute(items,
                   "update item set harga_beli_currency = :sign, harga_jual_lokal_currency = :sign, "
                   "harga_jual_luar_currency = case when harga_jual_luar_currency is not null then :sign end, "
                   "version = version + 1",
                   {{":sign", sign}}) &&
           execute(balances, "update stok_awal set harga_currency = :sign, version = version + 1", {{":sign", sign}});
}
