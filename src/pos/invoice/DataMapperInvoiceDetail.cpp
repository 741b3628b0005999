#include "pos/invoice/DataMapperInvoiceDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/EntityInvoiceDetail.h"

#include <QDebug>

DataMapperInvoiceDetail::DataMapperInvoiceDetail(QObject* parent, KorDataMapper* invoices, const ItemPartners& partners)
    : ItemLineMapper(parent)
{
    setName("invoice detail");
    metaData()->setTableName("invoice_detail");
    documentColumn("invoice_id", "InvoiceId", invoices);
    itemColumn(partners);
    column("qty", "integer not null", "Qty");
    moneyColumns("price_each", "PriceEach");
    moneyColumns("discount", "Discount");
    moneyColumns("total", "Total");
}

KorEntity* DataMapperInvoiceDetail::createEntity() { return new EntityInvoiceDetail(entityParent()); }

QStringList DataMapperInvoiceDetail::indexStatements() const { return lineIndexes("invoice_id", "qty"); }

QList<EntityInvoiceDetail*> DataMapperInvoiceDetail::findByInvoice(int invoiceId)
{
    return findByInvoices({invoiceId});
}

QList<EntityInvoiceDetail*> DataMapperInvoiceDetail::findByInvoices(const QList<int>& invoiceIds)
{
    return castAll<EntityInvoiceDetail>(
        findMany(KorConditions().oneOf("invoice_detail.invoice_id", invoiceIds).ascending("invoice_detail.id")));
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
