#include "app/context/EntityPool.h"
#include "pos/invoice/Invoice.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/order/OrderStatus.h"
#include "zavel/service/BusinessPenjualan.h"

// Orders on tables, and their invoices.

bool BusinessPenjualan::insertNewOrder(EntityMakanDitempat* order)
{
    EntityPool others;
    const EntityPoolScope scope(others);
    const bool placed = m_mappers.dineOrders->insertAtFreeTable(order);
    if (placed || !m_mappers.dineOrders->foundTableTaken())
        return written(placed, m_mappers.dineOrders, "insertNewOrder");
    m_mappers.dineOrders->clearError();
    addError("meja", tr("Meja sudah terisi"));
    return false;
}

bool BusinessPenjualan::updateOrder(EntityMakanDitempat* order)
{
    return written(m_mappers.dineOrders->update(order), m_mappers.dineOrders, "updateOrder");
}

bool BusinessPenjualan::removeOrder(EntityMakanDitempat* order)
{
    if (order->getStatus() == EntityOrder::PAID || order->getStatus() == EntityOrder::PARTIALY_PAID) {
        addError("removeOrder", tr("Order sudah dibayar tidak bisa dihapus"));
        return false;
    }
    return written(m_mappers.dineOrders->remove(order), m_mappers.dineOrders, "removeOrder");
}

EntityMakanDitempat* BusinessPenjualan::findOrder(int id)
{
    return static_cast<EntityMakanDitempat*>(
        read(m_mappers.dineOrders->findById(id), m_mappers.dineOrders, "findOrder"));
}

QList<EntityMakanDitempat*> BusinessPenjualan::getMakanDitempatList(int status, const QString& text)
{
    return read(m_mappers.dineOrders->getMakanDitempatList(status, text), m_mappers.dineOrders, "getMakanDitempatList");
}

bool BusinessPenjualan::updateStatusMakanDitempat(EntityMakanDitempat* order)
{
    return written(m_mappers.dineOrders->updateStatus(order), m_mappers.dineOrders, "updateStatusMakanDitempat");
}

bool BusinessPenjualan::setDineStatus(EntityMakanDitempat* order, int status)
{
    order->setStatus(status);
    return updateStatusMakanDitempat(order);
}

bool BusinessPenjualan::makanDitempatSelesai(EntityMakanDitempat* order)
{
    return written(m_mappers.dineOrders->markDone(order->getId()), m_mappers.dineOrders, "makanDitempatSelesai");
}

bool BusinessPenjualan::followInvoices(EntityMakanDitempat* order)
{
    EntityPool sums;
    const EntityPoolScope scope(sums);
    m_mappers.dineInvoices->clearError();
    const QList<EntityInvoiceMakanDitempat*> all = m_mappers.dineInvoices->findMoneyOfOrder(order->getId());
    if (m_mappers.dineInvoices->hasError()) {
        addError("insertInvoice", m_mappers.dineInvoices->takeError());
        return false;
    }
    qint64 paid = 0;
    qint64 grandTotal = 0;
    for (const EntityInvoiceMakanDitempat* one : all) {
        const Invoice* invoice = one->getInvoice();
        paid += qint64(invoice->getAmountPaid()->rawAmount()) + invoice->getOtherPayment()->rawAmount();
        grandTotal += invoice->getGrandTotal()->rawAmount();
    }
    return setDineStatus(order, orderStatusOfMoney(paid, grandTotal));
}

EntityInvoiceMakanDitempat* BusinessPenjualan::findInvoiceMakanDitempat(int id)
{
    return static_cast<EntityInvoiceMakanDitempat*>(
        read(m_mappers.dineInvoices->findById(id), m_mappers.dineInvoices, "find"));
}

EntityInvoiceMakanDitempat* BusinessPenjualan::findMakanDitempatByInvoiceId(int invoiceId)
{
    return static_cast<EntityInvoiceMakanDitempat*>(
        read(m_mappers.dineInvoices->findByInvoiceId(invoiceId), m_mappers.dineInvoices, "find"));
}

QList<EntityInvoiceMakanDitempat*> BusinessPenjualan::getInvoicesOfOrder(int orderId)
{
    return read(m_mappers.dineInvoices->findByOrder(orderId), m_mappers.dineInvoices, "find");
}
