#include "zavel/receivable/AmountLeft.h"

#include "pos/invoice/Invoice.h"

std::unique_ptr<Money> amountLeft(const Invoice& invoice)
{
    return minorUnits(double(invoice.getGrandTotal()->rawAmount()) - invoice.getAmountPaid()->rawAmount() -
                          invoice.getOtherPayment()->rawAmount(),
                      invoice.getGrandTotal()->getCurrency());
}
