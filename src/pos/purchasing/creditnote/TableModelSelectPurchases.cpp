#include "pos/purchasing/creditnote/TableModelSelectPurchases.h"

#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchase/PaidStatus.h"

TableModelSelectPurchases::TableModelSelectPurchases(const QList<KorEntity*>& purchases, QObject* parent)
    : AppEntityModel(purchases, parent)
{
    addText(tr("Purchase No."), &EntityAcquisition::getNo);
    addText(tr("Invoice No."), &EntityAcquisition::getInvoiceNo);
    addDate<EntityAcquisition>(tr("Date"),
                               [](const EntityAcquisition& purchase) { return purchase.getPurchaseDate(); });
    addField<EntityAcquisition>(QMetaType::QString, tr("Status"),
                                [](const EntityAcquisition& purchase) { return paidStatusText(purchase.getStatus()); });
    addMoney<EntityAcquisition>(tr("Invoice Total"),
                                [](const EntityAcquisition& purchase) { return purchase.getGrandTotal(); });
    addMoney<EntityAcquisition>(tr("Net Due"), [](const EntityAcquisition& purchase) { return purchase.getNetDue(); });
}
