#include "sales/invoice/InvoiceStatusText.h"

#include "sales/invoice/Invoice.h"

QString invoiceStatusText(int status)
{
    switch (status) {
    case Invoice::FULL_PAID:
        return Invoice::tr("Fully Paid");
    case Invoice::UNPAID:
        return Invoice::tr("Unpaid");
    case Invoice::PARTIALLY_PAID:
        return Invoice::tr("Partially Paid");
    default:
        return {};
    }
}
