#include "pos/purchasing/purchaseorder/TabSelectPO.h"

#include "app/persistence/AppDocumentLines.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/TableModelPurchaseOrder.h"

TabSelectPO::TabSelectPO(const EntitySupplier* supplier, QWidget* parent)
    : SelectDocumentTab("tblPO", service<BusinessPurchaseOrder>("Purchase Order"), parent), m_supplier(supplier),
      m_orders(service<BusinessPurchaseOrder>("Purchase Order"))
{
    refresh();
}

QList<KorEntity*> TabSelectPO::readRows() { return asEntities(m_orders->getOpenBySupplier(m_supplier)); }

KorEntityModel* TabSelectPO::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelPurchaseOrder(rows, this);
}
