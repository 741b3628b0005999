#include "zavel/receivable/DataMapperPiutangDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/receivable/EntityPiutangDetail.h"

DataMapperPiutangDetail::DataMapperPiutangDetail(DataMapperPiutang* payments, DataMapperInvoice* invoices,
                                                 DataMapperEmployee* employees, DataMapperAgent* agents,
                                                 DataMapperMember* members)
    : AppLineMapper(payments)
{
    setName("piutang detail");
    metaData()->setTableName("piutang_detail");
    documentColumn("piutang_id", "PiutangId", payments);
    column("invoice_id", "integer not null", "Invoice.Id");
    addJoin("Invoice", invoices, "inner", "piutang_detail.invoice_id", "id");
    addJoin("Employee", employees, "left", "invoice.employee_id", "id");
    addJoin("Agent", agents, "left", "invoice.agent_id", "id");
    addJoin("Member", members, "left", "invoice.member_id", "id");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("amount_due", "AmountDue");
}

KorEntity* DataMapperPiutangDetail::createEntity() { return new EntityPiutangDetail(entityParent()); }

QStringList DataMapperPiutangDetail::indexStatements() const
{
    return {index("invoice_id", "(invoice_id)"), index("piutang_id", "(piutang_id)")};
}

QList<EntityPiutangDetail*> DataMapperPiutangDetail::findByInvoices(const QList<int>& invoiceIds)
{
    return castAll<EntityPiutangDetail>(
        findMany(KorConditions().oneOf("invoice_id", invoiceIds).ascending("piutang_detail.id")));
}
