#include "sales/receivable/AmountLeft.h"

#include "sales/invoice/Invoice.h"

std::unique_ptr<Money> minorUnits(double amount, const QString& currency)
{
    auto money = std::make_unique<Money>(nullptr, 0, currency);
    money->setRawAmount(amount);
    return money;
}

std::unique_ptr<Money> amountLeft(const Invoice& invoice)
{
    return minorUnits(double(invoice.getGrandTotal()->rawAmount()) - invoice.getAmountPaid()->rawAmount() -
                          invoice.getOtherPayment()->rawAmount(),
                      invoice.getGrandTotal()->getCurrency());
}
