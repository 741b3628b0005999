#include "pos/purchasing/purchaseorder/TabPurchaseOrder.h"

#include "app/persistence/AppDocumentLines.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DialogPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/TableModelPurchaseOrder.h"

TabPurchaseOrder::TabPurchaseOrder(QWidget* parent)
    : PurchasingListTab(
          {tr("Purchase Orders"), "tblPurchaseOrder", "Purchase Order"},
          {"ddlStatus",
           tr("Status :"),
           {{tr("Sent to Supplier"), EntityPurchaseOrder::RELEASED},
            {tr("Received"), EntityPurchaseOrder::RECEIVED},
            {tr("Changed"), EntityPurchaseOrder::CHANGE_ORDER},
            {tr("Cancelled"), EntityPurchaseOrder::CANCELED},
            {tr("Closed"), EntityPurchaseOrder::CLOSED}},
           {{tr("PO No."), PurchasingFilter::DocumentNo}, {tr("Supplier Code"), PurchasingFilter::SupplierCode}},
           tr("Are you sure you want to delete Purchase Order with No: %1 ?")},
          parent)
{
    refresh();
}

QList<KorEntity*> TabPurchaseOrder::readRows(const QString&)
{
    return asEntities(businessAs<BusinessPurchaseOrder>()->findAll(chosen()));
}

KorEntityModel* TabPurchaseOrder::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelPurchaseOrder(rows, this);
}

std::unique_ptr<KorDialog> TabPurchaseOrder::createDialog() { return std::make_unique<DialogPurchaseOrder>(this); }

QString TabPurchaseOrder::notFoundText(int id) const { return tr("Can not find PO with id: %1").arg(id); }
