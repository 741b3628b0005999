#include "sales/invoice/DataMapperInvoiceDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "masterdata/item/DataMapperItem.h"
#include "masterdata/jenisitem/DataMapperJenisItem.h"
#include "masterdata/satuan/DataMapperSatuan.h"
#include "sales/invoice/EntityInvoiceDetail.h"

#include <QDebug>

DataMapperInvoiceDetail::DataMapperInvoiceDetail(QObject* parent, KorDataMapper* invoices, DataMapperItem* items,
                                                 DataMapperJenisItem* types, DataMapperSatuan* units)
    : AppDataMapper(parent)
{
    setName("invoice detail");
    metaData()->setTableName("invoice_detail");
    column("invoice_id", "integer not null", "InvoiceId");
    column("item_id", "integer not null", "Item.Id");
    column("qty", "integer not null", "Qty");
    moneyColumns("price_each", "PriceEach");
    moneyColumns("discount", "Discount");
    moneyColumns("total", "Total");
    addJoin("InvoiceId", invoices, "inner", "invoice_id", "id");
    addJoin("Item", items, "inner", "item_id", "id");
    addJoin("Jenis", types, "inner", "item.jenis", "id");
    addJoin("Satuan", units, "inner", "item.satuan", "id");
}

KorEntity* DataMapperInvoiceDetail::createEntity() { return new EntityInvoiceDetail(entityParent()); }

QStringList DataMapperInvoiceDetail::indexStatements() const
{
    return {index("invoice", "(invoice_id)"), index("item", "(item_id, invoice_id) INCLUDE (qty)")};
}

QList<EntityInvoiceDetail*> DataMapperInvoiceDetail::findByInvoice(int invoiceId)
{
    return castAll<EntityInvoiceDetail>(
        findMany(" where invoice_detail.invoice_id=:id order by invoice_detail.id", {{":id", invoiceId}}));
}

QList<EntityInvoiceDetail*> DataMapperInvoiceDetail::findByInvoices(const QList<int>& invoiceIds)
{
    return castAll<EntityInvoiceDetail>(findMany(
        " where invoice_detail.invoice_id = ANY(:ids) order by invoice_detail.id", {{":ids", idList(invoiceIds)}}));
}

bool DataMapperInvoiceDetail::removeByInvoiceId(int invoiceId)
{
    KorQuery query;
    if (execute(query, "delete from " + tableName() + " where invoice_id = :id", {{":id", invoiceId}}))
        return true;
    setError("delete failed");
    qDebug() << "removeByInvoiceId failed";
    return false;
}
