#include "app/persistence/FoundRows.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/commission/DataMapperKomisiAgenDetail.h"
#include "zavel/service/BusinessPenjualan.h"

// What agents earn.

EntityKomisiAgen* BusinessPenjualan::findKomisiAgen(int id)
{
    return static_cast<EntityKomisiAgen*>(
        read(m_mappers.commissions->findById(id), m_mappers.commissions, "findKomisiAgen"));
}

bool BusinessPenjualan::insertCommision(EntityKomisiAgen* payment)
{
    return written(m_mappers.commissions->insert(payment), m_mappers.commissions, "insertCommision");
}

bool BusinessPenjualan::updateCommision(EntityKomisiAgen* payment)
{
    return written(m_mappers.commissions->update(payment), m_mappers.commissions, "updateCommision");
}

bool BusinessPenjualan::remove(EntityKomisiAgen* payment) { return removeSettlement(m_mappers.commissions, payment); }

QList<EntityKomisiAgen*> BusinessPenjualan::searchKomisiAgen(const CommissionFilter& filter)
{
    return read(m_mappers.commissions->search(filter), m_mappers.commissions, "searchKomisiAgen");
}

EntityKomisiAgen* BusinessPenjualan::getKomisiAgenByInvoiceId(int invoiceId)
{
    DataMapperKomisiAgenDetail* lines = m_mappers.commissions->lines();
    const EntityKomisiAgenDetail* line = read(lines->findByInvoice(invoiceId), lines, "getKomisiAgenByInvoiceId");
    if (!line)
        return nullptr;
    return static_cast<EntityKomisiAgen*>(read(m_mappers.commissions->findById(line->getKomisiAgenID()),
                                               m_mappers.commissions, "getKomisiAgenByInvoiceId"));
}

QList<EntityAllKomisiAgen*> BusinessPenjualan::searchInvoiceForAgentCommision(const AgentSalesFilter& filter)
{
    return read(m_mappers.agentSales->search(filter), m_mappers.agentSales, "searchInvoiceForAgentCommision");
}

std::shared_ptr<FoundRows> BusinessPenjualan::openAgentSales(const AgentSalesFilter& filter)
{
    const auto readOn = [this, filter](const FoundRows::Place& behind, int atMost) {
        return read(m_mappers.agentSales->readList(filter, behind, atMost), m_mappers.agentSales,
                    "searchInvoiceForAgentCommision");
    };
    return std::make_shared<FoundRows>(m_mappers.agentSales, "invoice_invoice_date", readOn);
}
