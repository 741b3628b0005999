#include "pos/invoice/DataMapperInvoice.h"

#include "app/numbers/DataMapperKey.h"
#include "kor/entity/KorMetaDataMap.h"
#include "pos/inventory/stock/StockMovements.h"
#include "pos/invoice/Invoice.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/member/DataMapperMember.h"

DataMapperInvoice::DataMapperInvoice(QObject* parent, const Partners& partners, const ItemPartners& items)
    : AppDataMapper(parent), m_partners(partners)
{
    setName("invoice");
    metaData()->setTableName("invoice");
    column("invoice_date", "date not null", "InvoiceDate");
    column("no", "varchar(50) not null", "InvoiceNo");
    column("note", "text null", "Note");
    column("status", "integer not NULL", "Status");
    column("invoice_type", "varchar(50) not null", "InvoiceType");
    moneyColumns("sub_total", "Subtotal");
    column("disc_perc", "numeric not NULL", "DiscountPerc");
    moneyColumns("discount", "Discount");
    column("tax_perc", "numeric not NULL", "TaxPerc");
    moneyColumns("tax", "Tax");
    moneyColumns("grandtotal", "GrandTotal");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("net_due", "NetDue");
    moneyColumns("other_payment", "OtherPayment");
    column("service_perc", "numeric not NULL", "ServicePerc");
    moneyColumns("service", "Service");
    column("member_id", "integer NULL", "Member.Id");
    column("agent_id", "integer NULL", "Agent.Id");
    column("pemesan", "varchar(50) null", "Pemesan");
    column("employee_id", "integer NULL", "Employee.Id");
    column("acct_code", "varchar(20) not null", "AcctCode");
    addJoin("Employee", partners.employees, "left", "employee_id", "id");
    addJoin("Agent", partners.agents, "left", "agent_id", "id");
    addJoin("Member", partners.members, "left", "member_id", "id");
    m_detailMapper = new DataMapperInvoiceDetail(this, this, items);
}

DataMapperInvoice::DataMapperInvoice(QObject* parent, DataMapperInvoice* invoices)
    : AppDataMapper(parent), m_partners(invoices->m_partners), m_detailMapper(invoices->m_detailMapper)
{}

KorEntity* DataMapperInvoice::createEntity() { return new Invoice(entityParent()); }

bool DataMapperInvoice::createTable(int mode)
{
    if (!AppDataMapper::createTable(mode))
        return false;
    if (mode == 1 && !addForeignKey("invoice", "invoice_acct_code_fkey", "acct_code", "bank", "kode"))
        return false;
    if (m_detailMapper->createTable(mode))
        return true;
    setError(m_detailMapper->takeError());
    return false;
}

QStringList DataMapperInvoice::indexStatements() const
{
    return {index("invoice_date", "(invoice_date)"), index("open_member", "(member_id) WHERE status <> 1"),
            index("agent_id", "(agent_id) WHERE agent_id IS NOT NULL"),
            index("employee_id", "(employee_id) WHERE employee_id IS NOT NULL"), index("acct_code", "(acct_code)")};
}

QList<Invoice*> DataMapperInvoice::findByIds(const QList<int>& ids)
{
    return castAll<Invoice>(findMany(KorConditions().oneOf("invoice.id", ids).ascending("invoice.id")));
}

int DataMapperInvoice::quantityUsed(int itemId, const QDate& until) { return quantityUsed(itemId, QDate(), until); }

int DataMapperInvoice::quantityUsed(int itemId, const QDate& from, const QDate& until)
{
    int used = 0;
    KorQuery query;
    if (!StockMovements::quantity(query, StockMovements::Used, itemId, from, until, used))
        log("error sql " + query.failure());
    return used;
}
