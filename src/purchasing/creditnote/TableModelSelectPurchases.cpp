#include "purchasing/creditnote/TableModelSelectPurchases.h"

#include "purchasing/acquisition/EntityAcquisition.h"
#include "purchasing/document/PaidStatus.h"

TableModelSelectPurchases::TableModelSelectPurchases(const QList<KorEntity*>& purchases, QObject* parent)
    : AppEntityModel(purchases, parent)
{
    using Purchase = EntityAcquisition;
    addText(tr("Purchase No."), &Purchase::getNo);
    addText(tr("Invoice No."), &Purchase::getInvoiceNo);
    addField<Purchase>(QMetaType::QDateTime, tr("Date"),
                       [this](const Purchase& purchase) { return dateText(purchase.getPurchaseDate()); });
    addField<Purchase>(QMetaType::QString, tr("Status"),
                       [](const Purchase& purchase) { return paidStatusText(purchase.getStatus()); });
    addMoney<Purchase>(tr("Invoice Total"), [](const Purchase& purchase) { return purchase.getGrandTotal(); });
    addMoney<Purchase>(tr("Net Due"), [](const Purchase& purchase) { return purchase.getNetDue(); });
}
