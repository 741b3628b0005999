#include "pos/invoice/Invoice.h"
#include "zavel/order/OrderStatus.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

// Orders to take away, and their invoices.

bool BusinessPenjualan::insertNewOrder(EntityBawaPulang* order)
{
    return written(m_mappers.takeAwayOrders->insert(order), m_mappers.takeAwayOrders, "insertNewOrder");
}

bool BusinessPenjualan::updateOrder(EntityBawaPulang* order)
{
    return written(m_mappers.takeAwayOrders->update(order), m_mappers.takeAwayOrders, "updateOrder");
}

bool BusinessPenjualan::removeOrder(EntityBawaPulang* order)
{
    if (order->getStatus() == EntityOrder::PAID || order->getStatus() == EntityOrder::PARTIALY_PAID) {
        addError("removeOrder", tr("This order is already paid"));
        return false;
    }
    return written(m_mappers.takeAwayOrders->remove(order), m_mappers.takeAwayOrders, "removeOrder");
}

EntityBawaPulang* BusinessPenjualan::findOrderBawaPulang(int id)
{
    return static_cast<EntityBawaPulang*>(
        read(m_mappers.takeAwayOrders->findById(id), m_mappers.takeAwayOrders, "findOrderBawaPulang"));
}

QList<EntityBawaPulang*> BusinessPenjualan::getBawaPulangList(int status)
{
    return read(m_mappers.takeAwayOrders->getBawaPulangList(status), m_mappers.takeAwayOrders, "getBawaPulangList");
}

bool BusinessPenjualan::bawaPulangSelesai(EntityBawaPulang* order)
{
    return written(m_mappers.takeAwayOrders->markDone(order->getId()), m_mappers.takeAwayOrders, "bawaPulangSelesai");
}

bool BusinessPenjualan::updateStatusBawaPulang(EntityInvoiceBawaPulang* sale)
{
    EntityBawaPulang* order = sale->getBawaPulang();
    const int status = orderStatusOfInvoiceStatus(sale->getInvoice()->getStatus());
    if (status >= 0)
        order->setStatus(status);
    return written(m_mappers.takeAwayOrders->updateStatus(order), m_mappers.takeAwayOrders, "updateStatusBawaPulang");
}

EntityInvoiceBawaPulang* BusinessPenjualan::findInvoiceBawaPulang(int id)
{
    return static_cast<EntityInvoiceBawaPulang*>(
        read(m_mappers.takeAwayInvoices->findById(id), m_mappers.takeAwayInvoices, "find"));
}

EntityInvoiceBawaPulang* BusinessPenjualan::findBawaPulangByInvoiceId(int invoiceId)
{
    return static_cast<EntityInvoiceBawaPulang*>(
        read(m_mappers.takeAwayInvoices->findByInvoiceId(invoiceId), m_mappers.takeAwayInvoices, "find"));
}

QList<EntityInvoiceBawaPulang*> BusinessPenjualan::getInvoicesOfBawaPulang(int orderId)
{
    return read(m_mappers.takeAwayInvoices->findByOrder(orderId), m_mappers.takeAwayInvoices, "find");
}
