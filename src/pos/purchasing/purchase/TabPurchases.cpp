#include "pos/purchasing/purchase/TabPurchases.h"

#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/UnfinishedSave.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/DialogPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchase/PaidStatus.h"
#include "pos/purchasing/purchase/TableModelPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"

#include <QMessageBox>

#include <algorithm>

TabPurchases::TabPurchases(QWidget* parent)
    : PurchasingListTab({tr("Purchases/Receive Inventory"), "tblPurchases", "Purchases"},
                        {"ddlStatus",
                         tr("Status :"),
                         {{paidStatusText(EntityAcquisition::FULL_PAID), EntityAcquisition::FULL_PAID},
                          {paidStatusText(EntityAcquisition::PARTIALLY_PAID), EntityAcquisition::PARTIALLY_PAID},
                          {paidStatusText(EntityAcquisition::UNPAID), EntityAcquisition::UNPAID}},
                         {{tr("Purchase No."), PurchasingFilter::DocumentNo},
                          {tr("Supplier Code"), PurchasingFilter::SupplierCode},
                          {tr("Invoice No"), PurchasingFilter::OtherNo}},
                         tr("Are you sure you want to delete Purchase with No: %1 ?")},
                        parent)
{
    refresh();
}

QList<KorEntity*> TabPurchases::readRows(const QString&)
{
    return asEntities(businessAs<BusinessPurchases>()->findAll(chosen()));
}

KorEntityModel* TabPurchases::createModel(const QList<KorEntity*>& rows) { return new TableModelPurchases(rows, this); }

void TabPurchases::modelApplied() { setColumnWidths(grid(), {124, 164, 196, 124, 144, 162}); }

std::unique_ptr<KorDialog> TabPurchases::createDialog() { return std::make_unique<DialogPurchases>(this); }

QString TabPurchases::countText(int rows) const { return tr("%1 items").arg(rows); }

void TabPurchases::entitySaved(KorEntity* entity)
{
    const auto* purchase = static_cast<EntityAcquisition*>(entity);
    const auto& lines = purchase->getDetails();
    const bool isShort = std::any_of(lines.cbegin(), lines.cend(), [](const EntityAcquisitionDetail* line) {
        return line->getQty() < line->getQtyOrdered();
    });
    if (purchase->getIsApplyToPurchaseOrder() && !isShort)
        offerToClose(*purchase);
}

void TabPurchases::offerToClose(const EntityAcquisition& purchase)
{
    const int orderId = purchase.getPurchaseOrderId();
    EntityPool read;
    const EntityPoolScope scope(read);
    auto* orders = service<BusinessPurchaseOrder>("Purchase Order");
    KorErrorScope errors(orders);
    EntityPurchaseOrder* order = orders->findHeader(orderId);
    if (!order) {
        if (!KorErrorBox::tell(this, errors.take()))
            QMessageBox::information(this, tr("Error"), tr("Can not find PO with id: %1").arg(orderId));
        return;
    }
    const QString question = tr("You have received all items from Purchase Order No: %1. Do you want to close this "
                                "Purchase Order now?");
    // Do not ask if somebody has already closed the order.
    if (order->getStatus() == EntityPurchaseOrder::CLOSED ||
        QMessageBox::question(this, tr("Info"), question.arg(order->getNo())) != QMessageBox::Yes)
        return;
    order->setStatus(EntityPurchaseOrder::CLOSED);
    if (orders->update(order))
        return;
    UnfinishedSave{UnfinishedSave::saved(purchase.getNo()),
                   tr("the closing of Purchase Order No: %1").arg(order->getNo()),
                   tr("Later, close it in the form of the purchase order."), [&] { return orders->update(order); }}
        .offer(this, orders);
}
