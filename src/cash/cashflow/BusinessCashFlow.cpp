#include "cash/cashflow/BusinessCashFlow.h"

#include "cash/cashflow/DataMapperCashFlow.h"

BusinessCashFlow::BusinessCashFlow(QObject* parent, DataMapperCashFlow* entries)
    : KorBusinessLogic("Journal Transaction", entries, parent)
{}

QList<KorPermission> BusinessCashFlow::getPermissions() const
{
    return {{INSERT_CASH_FLOW, tr("Insert Journal Transaction")},
            {UPDATE_CASH_FLOW, tr("Update Journal Transaction")},
            {DELETE_CASH_FLOW, tr("Delete Journal Transaction")}};
}

bool BusinessCashFlow::clearTransactions() { return clearTables({mapper()}); }
