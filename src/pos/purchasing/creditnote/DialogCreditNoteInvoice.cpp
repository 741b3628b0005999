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
    // What was taken off the price when it was bought is taken off what comes back for each of them.
    keepDiscountShare();
    const auto& returned = *static_cast<EntityCreditNoteDetail*>(line);
    auto* notes = service<BusinessCreditNote>("Credit Note");
    KorErrorScope errors(notes);
    const int before = notes->returnedElsewhere(returned);
    showError(errors.take());
    addShownRow(tr("Bought :"), QString::number(returned.getQty()));
    addShownRow(tr("Returned before :"), QString::number(before));
    // The same goods do not go back twice; what was never bought goes back as a free item.
    const int left = std::max(0, returned.getQty() - before);
    limitQuantity(left, tr("No more than %1 of this item can go back for the purchase").arg(left));
}
