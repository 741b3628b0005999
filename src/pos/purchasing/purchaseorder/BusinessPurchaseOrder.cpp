#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"

#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/PurchasesOfOrders.h"

BusinessPurchaseOrder::BusinessPurchaseOrder(QObject* parent, DataMapperPurchaseOrder* orders,
                                             PurchasesOfOrders* purchases)
    : PurchasingService("Purchase Order", orders, parent), m_orders(orders), m_purchases(purchases)
{}

QList<KorPermission> BusinessPurchaseOrder::getPermissions() const
{
    return {{INSERT_PO, tr("Insert PO")},
            {UPDATE_PO, tr("Update PO")},
            {DELETE_PO, tr("Delete PO")},
            {INSERT_PO_DETAIL, tr("Insert PO Detail")},
            {UPDATE_PO_DETAIL, tr("Update PO Detail")},
            {DELETE_PO_DETAIL, tr("Delete PO Detail")}};
}

QList<KorEntity*> BusinessPurchaseOrder::linesOf(const KorEntity& order) const
{
    return asEntities(static_cast<const EntityPurchaseOrder&>(order).getDetails());
}

QList<EntityPurchaseOrder*> BusinessPurchaseOrder::findAll(const PurchasingFilter& filter)
{
    return read(m_orders->findAll(filter), m_orders, "findall");
}

EntityPurchaseOrder* BusinessPurchaseOrder::findByNo(const QString& no)
{
    return read(m_orders->findByNo(no), m_orders, "findByNo");
}

EntityPurchaseOrder* BusinessPurchaseOrder::findHeader(int id)
{
    return read(m_orders->findHeader(id), m_orders, "findHeader");
}

QList<EntityPurchaseOrder*> BusinessPurchaseOrder::getOpenBySupplier(const EntitySupplier* supplier)
{
    return read(m_orders->getOpenBySupplier(supplier), m_orders, "getOpenBySupplier");
}

QString BusinessPurchaseOrder::isPurchased(const EntityPurchaseOrder* order)
{
    return read(m_purchases->purchaseNo(order->getId()), m_purchases->mapper(), "isPurchased");
}

bool BusinessPurchaseOrder::remove(KorEntity* order)
{
    const QString purchase = isPurchased(static_cast<EntityPurchaseOrder*>(order));
    if (!purchase.isEmpty()) {
        addError("remove", tr("There is already purchase transaction using this PO, please delete it first: "
                              "Purchase No: %1")
                               .arg(purchase));
    }
    return purchase.isEmpty() && !errors().contains("isPurchased") && PurchasingService::remove(order);
}
