#include "pos/purchasing/creditnote/DialogCreditNoteInvoice.h"

#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/purchasing/creditnote/BusinessCreditNote.h"

#include <algorithm>

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
    // The discount of the purchase also reduces the refund, in proportion to the quantity.
    keepDiscountShare();
    const auto& returned = *static_cast<EntityCreditNoteDetail*>(line);
    auto* notes = service<BusinessCreditNote>("Credit Note");
    KorErrorScope errors(notes);
    const int before = notes->returnedElsewhere(returned);
    showError(errors.take());
    addShownRow(tr("Bought :"), QString::number(returned.getQty()));
    addShownRow(tr("Returned before :"), QString::number(before));
    // The same goods cannot be returned twice. Goods without a purchase are entered on the other page.
    const int left = std::max(0, returned.getQty() - before);
    limitQuantity(left, tr("No more than %1 of this item can go back for the purchase").arg(left));
}
