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

QStringList DataMapperInvoiceDetail::indexStatements() const { return lineIndexes("qty"); }

bool DataMapperInvoiceDetail::removeByInvoiceId(int invoiceId)
{
    if (removeByDocument(invoiceId))
        return true;
    setError("delete failed");
    qDebug() << "removeByInvoiceId failed";
    return false;
}
