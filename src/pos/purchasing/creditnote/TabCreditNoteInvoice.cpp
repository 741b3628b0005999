#include "pos/purchasing/creditnote/TabCreditNoteInvoice.h"

#include "pos/purchasing/creditnote/DialogSelectPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"

namespace
{
/** The discount of the whole line in percent: as entered, unless the amount was rounded to another value. */
double discountShare(const EntityPurchasingLine& bought)
{
    const double gross = double(bought.linePrice()->rawAmount()) * bought.quantity();
    const double keyed = bought.getDiscountPercentage();
    const int discount = bought.getDiscount()->rawAmount();
    return qFuzzyIsNull(gross) || qRound64(gross * keyed / 100) == discount ? keyed : discount * 100.0 / gross;
}
} // namespace

TabCreditNoteInvoice::TabCreditNoteInvoice(QWidget* parent)
    : PurchasingLinesOf({"btnSelectPurchases", tr("Select Purchases"), tr("Take the lines of a purchase over (F12)"),
                         "Purchases", tr("Can not find entity with id: %1")},
                        parent)
{
    refresh();
}

std::unique_ptr<SelectDocumentDialog> TabCreditNoteInvoice::createSelection(const EntitySupplier* supplier)
{
    return std::make_unique<DialogSelectPurchases>(supplier, this);
}

QList<EntityPurchasingLine*> TabCreditNoteInvoice::linesOfSource(const KorEntity& purchase) const
{
    return castAll<EntityPurchasingLine>(asEntities(static_cast<const EntityAcquisition&>(purchase).getDetails()));
}

int TabCreditNoteInvoice::sourceLineOf(const KorEntity& line) const
{
    return static_cast<const EntityCreditNoteDetail&>(line).getAcquisitionDetailId();
}

void TabCreditNoteInvoice::fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& bought)
{
    auto* returned = static_cast<EntityCreditNoteDetail*>(line);
    returned->setQty(bought.quantity());
    returned->setAcquisitionDetailId(bought.getId());
    returned->setLinePrice(bought.linePrice());
    returned->setDiscountPercentage(discountShare(bought));
    // Nothing is returned until the user enters a quantity.
    returned->setQtyReturned(0);
    const Money nothing(nullptr, 0, bought.linePrice()->getCurrency());
    returned->setDiscount(nothing.copy(returned));
    returned->recomputeTotal();
}
