#include "purchasing/creditnote/DialogCreditNoteInvoice.h"

#include "purchasing/creditnote/EntityCreditNoteDetail.h"

DialogCreditNoteInvoice::DialogCreditNoteInvoice(EntityPool& items, QWidget* parent)
    : PurchasingLineDialog(items,
                           {tr("Enter the item code"), tr("Enter the purchase price of this item"), tr("Enter the qty"),
                            tr("Returned :")},
                           parent)
{
    setWindowTitle(tr("Item from Invoice"));
}

void DialogCreditNoteInvoice::setEntity(KorEntity* line)
{
    PurchasingLineDialog::setEntity(line);
    // What was taken off the price when it was bought is taken off what comes back for each of them.
    keepDiscountShare();
    const int bought = static_cast<EntityCreditNoteDetail*>(line)->getQty();
    addShownRow(tr("Bought :"), QString::number(bought));
    limitQuantity(bought, tr("The purchase holds %1 of this item, and no more can go back for it").arg(bought));
}
