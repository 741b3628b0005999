#pragma once

#include "app/persistence/AppDataMapper.h"
#include "app/persistence/FoundRows.h"

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
    /**
     * The same, as a list reads it: at most so many rows behind the place, with what the list shows and no more. Null
     * after a failure.
     */
    [[nodiscard]] std::unique_ptr<KorQuery> readList(const AgentSalesFilter& filter, const FoundRows::Place& behind,
                                                     int atMost);
    using AppDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;

private:
    [[nodiscard]] KorConditions conditionsOf(const AgentSalesFilter& filter);
    [[nodiscard]] QString joins() const;

    DataMapperInvoice* m_invoices;
    DataMapperAgent* m_agents;
};
