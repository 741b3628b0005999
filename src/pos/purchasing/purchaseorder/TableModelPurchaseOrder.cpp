#include "pos/purchasing/purchaseorder/TableModelPurchaseOrder.h"

#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"

TableModelPurchaseOrder::TableModelPurchaseOrder(const QList<KorEntity*>& orders, QObject* parent)
    : AppEntityModel(orders, parent)
{
    using Order = EntityPurchaseOrder;
    const auto date = [this](const QString& header, QDateTime (Order::*day)() const) {
        addDate<Order>(header, [day](const Order& order) { return (order.*day)().date(); });
    };
    addText(tr("PO No."), &Order::getNo);
    date(tr("Date"), &Order::getDate);
    date(tr("Ship Date"), &Order::getShipDate);
    addField<Order>(QMetaType::QString, tr("Supplier"),
                    [](const Order& order) { return order.getSupplier()->getNama(); });
    addField<Order>(QMetaType::QString, tr("Status"), [](const Order& order) { return statusText(order.getStatus()); });
    addMoney<Order>(tr("Total"), [](const Order& order) { return order.getGrandTotal(); });
}

QString TableModelPurchaseOrder::statusText(int status)
{
    switch (status) {
    case EntityPurchaseOrder::RELEASED:
        return tr("Sent to supplier");
    case EntityPurchaseOrder::RECEIVED:
        return tr("Received");
    case EntityPurchaseOrder::CHANGE_ORDER:
        return tr("Changed");
    case EntityPurchaseOrder::CANCELED:
        return tr("Cancelled");
    case EntityPurchaseOrder::CLOSED:
        return tr("Closed");
    default:
        return tr("None");
    }
}
