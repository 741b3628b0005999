#include "pos/purchasing/creditnote/DialogCreditNotePurchases.h"

DialogCreditNotePurchases::DialogCreditNotePurchases(EntityPool& items, QWidget* parent)
    : PurchasingLineDialog(
          items,
          {tr("Enter the item code"), tr("Enter the purchase price of this item"), tr("Enter the qty"), tr("Qty :")},
          parent)
{
    setWindowTitle(tr("Returned Item"));
}
