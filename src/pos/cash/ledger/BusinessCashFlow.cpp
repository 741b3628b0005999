#include "pos/cash/ledger/BusinessCashFlow.h"

#include "pos/cash/ledger/DataMapperCashFlow.h"

BusinessCashFlow::BusinessCashFlow(QObject* parent, DataMapperCashFlow* entries)
    : KorBusinessLogic("Journal Transaction", entries, parent), m_entries(entries)
{}

QList<KorPermission> BusinessCashFlow::getPermissions() const
{
    return {{INSERT_CASH_FLOW, tr("Insert Journal Transaction")},
            {UPDATE_CASH_FLOW, tr("Update Journal Transaction")},
            {DELETE_CASH_FLOW, tr("Delete Journal Transaction")}};
}

bool BusinessCashFlow::clearTransactions() { return clearTables({mapper()}); }

QList<EntityCashFlow*> BusinessCashFlow::search(const CashFlowFilter& filter)
{
    return read(m_entries->search(filter), m_entries, "search");
}

EntityCashFlow* BusinessCashFlow::getByTransNo(const QString& no)
{
    return read(m_entries->getByTransNo(no), m_entries, "getByTransNo");
}
