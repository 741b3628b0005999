#include "cash/accounting/BusinessAccountingTransaction.h"

#include "cash/accounting/DataMapperAccountingTransaction.h"

BusinessAccountingTransaction::BusinessAccountingTransaction(QObject* parent,
                                                             DataMapperAccountingTransaction* transfers)
    : KorBusinessLogic("Accounting Transaction", transfers, parent)
{}

QList<KorPermission> BusinessAccountingTransaction::getPermissions() const
{
    return {{CREATE_TRANS, tr("Create Accounting Trans")},
            {UPDATE_TRANS, tr("Update Accounting Trans")},
            {DELETE_TRANS, tr("Delete Accounting Trans")}};
}

bool BusinessAccountingTransaction::clearTransactions() { return clearTables({mapper()}); }
