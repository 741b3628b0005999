#include "pos/purchasing/purchase/DialogPurchaseDetail.h"

DialogPurchaseDetail::DialogPurchaseDetail(EntityPool& items, QWidget* parent)
    : PurchasingLineDialog(items,
                           {tr("Enter the item code"), tr("Enter the purchase price of the item"),
                            tr("Enter the qty of the item"), tr("Qty :")},
                           parent)
{
    setWindowTitle(tr("Purchase Item"));
}
