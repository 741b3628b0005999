#include "pos/purchasing/purchase/DialogPurchaseDetailPO.h"

#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"

DialogPurchaseDetailPO::DialogPurchaseDetailPO(EntityPool& items, QWidget* parent)
    : PurchasingLineDialog(items,
                           {tr("Enter the item code"), tr("Enter the purchase price of the item"),
                            tr("Enter the qty received"), tr("Received :")},
                           parent)
{
    setWindowTitle(tr("Item from Purchase Order"));
}

void DialogPurchaseDetailPO::setEntity(KorEntity* line)
{
    PurchasingLineDialog::setEntity(line);
    addShownRow(tr("Ordered :"), QString::number(static_cast<EntityAcquisitionDetail*>(line)->getQtyOrdered()));
}
