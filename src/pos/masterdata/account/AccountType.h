#pragma once

#include <QString>

/** The types of ledger accounts; the numbers are what the database holds. */
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

/** The name of the type as lists show it; empty for a number that is none. */
[[nodiscard]] QString accountTypeText(int type);
