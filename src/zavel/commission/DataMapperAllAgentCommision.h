#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperAgent;
class DataMapperInvoice;
class EntityAllKomisiAgen;
struct AgentSalesFilter;

/** Reads the invoices that have an agent, and whether the commission is paid. It has no table of its own. */
class DataMapperAllAgentCommision final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperAllAgentCommision(QObject* parent, DataMapperInvoice* invoices, DataMapperAgent* agents);

    KorEntity* createEntity() override;
    bool createTable(int) override { return true; }
    [[nodiscard]] QString selectStatement() const override;
    /** The invoices of all agents or of one agent, the latest first. */
    [[nodiscard]] QList<EntityAllKomisiAgen*> search(const AgentSalesFilter& filter);
    using AppDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;

private:
    DataMapperInvoice* m_invoices;
    DataMapperAgent* m_agents;
};
