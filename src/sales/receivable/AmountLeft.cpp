#include "sales/receivable/AmountLeft.h"

#include "sales/invoice/Invoice.h"

std::unique_ptr<Money> amountLeft(const Invoice& invoice)
{
    return minorUnits(double(invoice.getGrandTotal()->rawAmount()) - invoice.getAmountPaid()->rawAmount() -
                          invoice.getOtherPayment()->rawAmount(),
                      invoice.getGrandTotal()->getCurrency());
}
