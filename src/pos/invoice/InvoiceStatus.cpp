#include "pos/invoice/InvoiceStatus.h"

#include "pos/invoice/Invoice.h"

void setInvoiceStatus(Invoice* invoice)
{
    const qint64 paid = qint64(invoice->getAmountPaid()->rawAmount()) + invoice->getOtherPayment()->rawAmount();
    if (paid == 0)
        invoice->setStatus(Invoice::UNPAID);
    else if (paid >= invoice->getGrandTotal()->rawAmount())
        invoice->setStatus(Invoice::FULL_PAID);
    else
        invoice->setStatus(Invoice::PARTIALLY_PAID);
}
