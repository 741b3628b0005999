#include "zavel/list/SaleIds.h"

#include "pos/invoice/Invoice.h"

namespace
{
/** Dine-in and counter sales; a sale to take away has neither waitress nor agent. */
QString ofServed(const QString& condition)
{
    return "select invoice_id from invoice_makan_ditempat where " + condition +
           " union all select invoice_id from invoice_fast_food where " + condition;
}
} // namespace

QString SaleIds::open()
{
    return QString("select sale.id as invoice_id from invoice sale where sale.status <> %1").arg(Invoice::FULL_PAID);
}

QString SaleIds::ofMember(int memberId)
{
    return QString("select invoice_id from invoice_makan_ditempat inner join makan_ditempat dine on dine.id = "
                   "makan_ditempat_id where dine.member_id = %1 union all select invoice_id from invoice_fast_food "
                   "where member_id = %1 union all select invoice_id from invoice_bawa_pulang where member_id = %1")
        .arg(memberId);
}

QString SaleIds::ofWaitress(int employeeId) { return ofServed("employee_id = " + QString::number(employeeId)); }

QString SaleIds::ofAgent(int agentId) { return ofServed("agent_id = " + QString::number(agentId)); }

QString SaleIds::ofAllAgents() { return ofServed("agent_id is not null"); }

QString SaleIds::pending(const QString& ids)
{
    return "select sale.invoice_id from (" + ids +
           ") sale where not exists (select from komisi_agen_detail paid where paid.invoice_id = sale.invoice_id)";
}
