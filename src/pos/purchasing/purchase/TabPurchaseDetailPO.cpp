#include "pos/purchasing/purchase/TabPurchaseDetailPO.h"

#include "pos/purchasing/purchaseorder/DialogSelectPO.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"

TabPurchaseDetailPO::TabPurchaseDetailPO(QWidget* parent)
    : PurchasingLinesOf({"btnSelectPO", tr("Select PO"), tr("Take the lines of a purchase order over (F12)"),
                         "Purchase Order", tr("Can not find PO with id: %1")},
                        parent)
{
    refresh();
}

void TabPurchaseDetailPO::on_btnSelectPO_clicked() { selectSource(); }

std::unique_ptr<SelectDocumentDialog> TabPurchaseDetailPO::createSelection(const EntitySupplier* supplier)
{
    return std::make_unique<DialogSelectPO>(supplier, this);
}

QList<EntityPurchasingLine*> TabPurchaseDetailPO::linesOfSource(const KorEntity& order) const
{
    return castAll<EntityPurchasingLine>(asEntities(static_cast<const EntityPurchaseOrder&>(order).getDetails()));
}

int TabPurchaseDetailPO::sourceLineOf(const KorEntity& line) const
{
    return static_cast<const EntityAcquisitionDetail&>(line).getPurchaseOrderDetailId();
}

void TabPurchaseDetailPO::fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& ordered)
{
    auto* bought = static_cast<EntityAcquisitionDetail*>(line);
    bought->takeFigures(ordered);
    bought->setQty(0);
    bought->setQtyOrdered(ordered.quantity());
    bought->setPurchaseOrderDetailId(ordered.getId());
}
