#include "purchasing/purchaseorder/BusinessPurchaseOrder.h"

#include "purchasing/purchaseorder/DataMapperPurchaseOrder.h"

BusinessPurchaseOrder::BusinessPurchaseOrder(QObject* parent, DataMapperPurchaseOrder* orders)
    : KorBusinessLogic("Purchase Order", orders, parent), m_orders(orders)
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

bool BusinessPurchaseOrder::clearTransactions() { return clearTables({m_orders->lineMapper(), m_orders}); }
