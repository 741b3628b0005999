#include "zavel/commission/DataMapperAllAgentCommision.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "zavel/commission/CommissionAmount.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/list/SaleIds.h"

DataMapperAllAgentCommision::DataMapperAllAgentCommision(QObject* parent, DataMapperInvoice* invoices,
                                                         DataMapperAgent* agents)
    : AppDataMapper(parent), m_invoices(invoices), m_agents(agents)
{
    setName("all agent commision");
    metaData()->setTableName(invoices->tableName());
}

KorEntity* DataMapperAllAgentCommision::createEntity() { return new EntityAllKomisiAgen(entityParent()); }

QString DataMapperAllAgentCommision::selectStatement() const
{
    return "select " + columnList(*m_invoices, "invoice") + " , " + columnList(*m_agents, "agent_mkn") + " , " +
           columnList(*m_agents, "agent_ff") + joins();
}

QString DataMapperAllAgentCommision::joins() const
{
    const QString agent = m_agents->tableName();
    return " , komisi_agen_detail.invoice_id as paid_invoice_id from  invoice"
           " left join invoice_makan_ditempat on invoice.id = invoice_makan_ditempat.invoice_id"
           " left join invoice_bawa_pulang on invoice.id = invoice_bawa_pulang.invoice_id"
           " left join invoice_fast_food on invoice.id = invoice_fast_food.invoice_id"
           " left join " +
           agent + " agent_mkn on invoice_makan_ditempat.agent_id = agent_mkn.id left join " + agent +
           " agent_ff on invoice_fast_food.agent_id = agent_ff.id"
           " left join komisi_agen_detail on komisi_agen_detail.invoice_id = invoice.id";
}

KorConditions DataMapperAllAgentCommision::conditionsOf(const AgentSalesFilter& filter)
{
    const bool ofOneAgent = filter.agentId != KorNoValue;
    const bool unpaid = filter.status == EntityAllKomisiAgen::UNPAID;
    KorConditions conditions;
    conditions.between("invoice.invoice_date", filter.from, filter.to)
        .only({"invoice_makan_ditempat.agent_id", "invoice_fast_food.agent_id"}, filter.agentId);
    if (!ofOneAgent)
        conditions.holds("(invoice_makan_ditempat.agent_id is not null or invoice_fast_food.agent_id is not null)");
    if (unpaid)
        conditions.holds("komisi_agen_detail.invoice_id is null");
    else if (filter.status == EntityAllKomisiAgen::FULL_PAID)
        conditions.holds("komisi_agen_detail.invoice_id is not null");
    const QString ids = ofOneAgent ? SaleIds::ofAgent(filter.agentId) : SaleIds::ofAllAgents();
    if (unpaid)
        startWith(conditions, "invoice.id", {SaleIds::pending(ids)});
    else if (ofOneAgent)
        startWith(conditions, "invoice.id", {ids});
    return conditions;
}

QList<EntityAllKomisiAgen*> DataMapperAllAgentCommision::search(const AgentSalesFilter& filter)
{
    KorConditions conditions = conditionsOf(filter);
    conditions.descending("invoice.invoice_date").descending("invoice.id");
    return castAll<EntityAllKomisiAgen>(findMany(conditions));
}

std::unique_ptr<KorQuery> DataMapperAllAgentCommision::readList(const AgentSalesFilter& filter,
                                                                const FoundRows::Place& behind, int atMost)
{
    const QStringList agent{"nama", "commision_perc"};
    const QString statement =
        "select " + columnList(tableName(), {"invoice_date", "no", "grandtotal_currency", "grandtotal_amount"}) + ", " +
        columnList("agent_mkn", agent) + ", " + columnList("agent_ff", agent) + joins();
    KorConditions conditions = conditionsOf(filter);
    return findRows(statement, FoundRows::behind(conditions, "invoice", "invoice_date", behind, atMost));
}

KorEntity* DataMapperAllAgentCommision::fillFromRow(KorQuery& query, KorEntity* entity)
{
    auto* row = static_cast<EntityAllKomisiAgen*>(entity);
    auto* invoice = static_cast<Invoice*>(m_invoices->fromRow(query));
    auto* agent = static_cast<EntityAgent*>(query.partner(*m_agents, "agent_mkn"));
    if (!agent)
        agent = static_cast<EntityAgent*>(query.partner(*m_agents, "agent_ff"));
    row->setInvoice(invoice);
    row->setAgent(agent);
    row->setStatus(query.field("paid_invoice_id").isNull() ? EntityAllKomisiAgen::UNPAID
                                                           : EntityAllKomisiAgen::FULL_PAID);
    if (agent && invoice->getGrandTotal())
        row->setCommision(commissionOf(*invoice, agent->getCommisionPerc()).get());
    return row;
}
