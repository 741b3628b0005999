#include "pos/masterdata/account/AccountType.h"

#include <QCoreApplication>

QString accountTypeText(int type)
{
    const auto text = [](const char* source) { return QCoreApplication::translate("AccountType", source); };
    switch (type) {
    case CashAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Cash"));
    case AccountsPayableAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Accounts Payable"));
    case AccountsReceivableAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Accounts Receiveable"));
    case IncomeAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Income"));
    case ExpenseAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Expense"));
    case AssetsAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Assets"));
    case OtherCurrentLiabilitiesAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Other Current Liabilities"));
    case InventoryAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Inventory"));
    case CostOfSalesAccount:
        return text(QT_TRANSLATE_NOOP("AccountType", "Cost of Sales"));
    default:
        return {};
    }
}
