#include "pos/cash/transfer/BusinessAccountingTransaction.h"

#include "pos/cash/transfer/DataMapperAccountingTransaction.h"

BusinessAccountingTransaction::BusinessAccountingTransaction(QObject* parent,
                                                             DataMapperAccountingTransaction* transfers)
    : KorBusinessLogic("Accounting Transaction", transfers, parent), m_transfers(transfers)
{}

QList<KorPermission> BusinessAccountingTransaction::getPermissions() const
{
    return {{CREATE_TRANS, tr("Create Accounting Trans")},
            {UPDATE_TRANS, tr("Update Accounting Trans")},
            {DELETE_TRANS, tr("Delete Accounting Trans")}};
}

bool BusinessAccountingTransaction::clearTransactions() { return clearTables({mapper()}); }

QList<EntityAccountingTransaction*> BusinessAccountingTransaction::search(const AccountingTransactionFilter& filter)
{
    return read(m_transfers->search(filter), m_transfers, "search");
}
