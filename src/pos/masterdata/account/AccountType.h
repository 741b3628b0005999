#pragma once

#include <QString>

/** The types of ledger accounts, with the numbers stored in the database. */
enum AccountType {
    CashAccount = 1,
    AccountsPayableAccount,
    AccountsReceivableAccount,
    IncomeAccount,
    ExpenseAccount,
    AssetsAccount,
    OtherCurrentLiabilitiesAccount,
    InventoryAccount,
    CostOfSalesAccount
};

/** The name of the type in lists; empty for an unknown number. */
[[nodiscard]] QString accountTypeText(int type);
