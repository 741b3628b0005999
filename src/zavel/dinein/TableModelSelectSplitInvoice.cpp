#include "zavel/dinein/TableModelSelectSplitInvoice.h"

#include "pos/invoice/InvoiceStatusText.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"

TableModelSelectSplitInvoice::TableModelSelectSplitInvoice(const QList<KorEntity*>& invoices, QObject* parent)
    : AppEntityModel(invoices, parent)
{
    using Sale = EntityInvoiceMakanDitempat;
    addField<Sale>(QMetaType::QString, tr("Invoice No."),
                   [](const Sale& sale) { return sale.getInvoice()->getInvoiceNo(); });
    addMoney<Sale>(tr("Invoice Total"), [](const Sale& sale) { return sale.getInvoice()->getGrandTotal(); });
    addMoney<Sale>(tr("Amount Paid"), [](const Sale& sale) { return sale.getInvoice()->getAmountPaid(); });
    addMoney<Sale>(tr("Credits"), [](const Sale& sale) { return sale.getInvoice()->getOtherPayment(); });
    addMoney<Sale>(tr("Net Due"), [](const Sale& sale) { return sale.getInvoice()->getNetDue(); });
    addField<Sale>(QMetaType::QString, tr("Status"),
                   [](const Sale& sale) { return invoiceStatusText(sale.getInvoice()->getStatus()); });
}
