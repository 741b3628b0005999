#include "pos/invoice/InvoiceStatusText.h"

#include "app/widgets/StatusMark.h"
#include "pos/invoice/Invoice.h"

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

QHash<int, QIcon> invoiceStatusMarks()
{
    return {{Invoice::FULL_PAID, statusMark("paid")},
            {Invoice::PARTIALLY_PAID, statusMark("partial")},
            {Invoice::UNPAID, statusMark("unpaid")}};
}
