#include "zavel/commission/DataMapperKomisiAgenDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/commission/EntityKomisiAgenDetail.h"

DataMapperKomisiAgenDetail::DataMapperKomisiAgenDetail(DataMapperKomisiAgen* payments, DataMapperInvoice* invoices)
    : AppLineMapper(payments)
{
    setName("komisi agen detail");
    metaData()->setTableName("komisi_agen_detail");
    documentColumn("komisi_agen_id", "KomisiAgenID", payments);
    column("invoice_id", "integer not null", "Invoice.Id");
    addJoin("Invoice", invoices, "inner", "komisi_agen_detail.invoice_id", "id");
    column("commision_perc", "numeric not NULL", "CommisionPerc");
    moneyColumns("commision", "Commision");
}

KorEntity* DataMapperKomisiAgenDetail::createEntity() { return new EntityKomisiAgenDetail(entityParent()); }

QStringList DataMapperKomisiAgenDetail::indexStatements() const
{
    return {index("invoice_id", "(invoice_id)"), index("komisi_agen_id", "(komisi_agen_id)")};
}

EntityKomisiAgenDetail* DataMapperKomisiAgenDetail::findByInvoice(int invoiceId)
{
    return static_cast<EntityKomisiAgenDetail*>(
        findOne(KorConditions().equals("invoice_id", invoiceId).ascending("komisi_agen_detail.id")));
}
