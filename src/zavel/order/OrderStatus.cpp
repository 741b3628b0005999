#include "zavel/order/OrderStatus.h"

#include "pos/invoice/Invoice.h"
#include "zavel/order/EntityOrder.h"

int orderStatusOfMoney(qint64 paid, qint64 grandTotal)
{
    if (paid == 0)
        return EntityOrder::UNPAID;
    return paid >= grandTotal ? EntityOrder::PAID : EntityOrder::PARTIALY_PAID;
}

int orderStatusOfInvoice(const Invoice& invoice)
{
    return orderStatusOfMoney(qint64(invoice.getAmountPaid()->rawAmount()) + invoice.getOtherPayment()->rawAmount(),
                              invoice.getGrandTotal()->rawAmount());
}

int orderStatusOfInvoiceStatus(int invoiceStatus)
{
    switch (invoiceStatus) {
    case Invoice::UNPAID:
        return EntityOrder::UNPAID;
    case Invoice::FULL_PAID:
        return EntityOrder::PAID;
    case Invoice::PARTIALLY_PAID:
        return EntityOrder::PARTIALY_PAID;
    default:
        return -1;
    }
}
