#include "zavel/service/BusinessPenjualan.h"

#include "app/context/EntityPool.h"
#include "pos/invoice/IInvoice.h"
#include "pos/invoice/Invoice.h"
#include "pos/invoice/InvoiceStatus.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/order/OrderStatus.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QDebug>

BusinessPenjualan::BusinessPenjualan(QObject* parent, const Mappers& mappers)
    : KorBusinessLogic("Sales", mappers.dineInvoices, parent), m_mappers(mappers)
{}

QList<KorPermission> BusinessPenjualan::getPermissions() const
{
    return {{TAMBAH_PESANAN, tr("Add New Order")},
            {UBAH_PESANAN, tr("Edit an Order")},
            {HAPUS_PESANAN, tr("Delete an Order")},
            {SAVE_INVOICE, tr("Save an Invoice")},
            {SET_KITCHEN_STATUS, tr("Set Kitchen Status")},
            {BAYAR_PIUTANG, tr("Pay for an Accounts Receivable")},
            {UPDATE_PIUTANG, tr("Update an Accounts Receivable")},
            {BAYAR_KOMISI_AGEN, tr("Pay for Agent Commission")},
            {UPDATE_BAYAR_KOMISI_AGEN, tr("Update Agent Commission Payment")},
            {DELETE_SALES, tr("Delete a Sales Order")},
            {DELETE_PIUTANG, tr("Delete Accounts Receivable")},
            {HAPUS_BAYAR_KOMISI, tr("Delete Agent Commission Payment")}};
}

// --- orders on tables ----------------------------------------------------------------------------------------------

bool BusinessPenjualan::insertNewOrder(EntityMakanDitempat* order)
{
    // The code goes out as it is written and meets lowered ones, so a code with a capital finds no order.
    const QList<EntityMakanDitempat*> open = m_mappers.dineOrders->getMakanDitempatList(0, order->getMeja()->getKode());
    if (m_mappers.dineOrders->hasError())
        return written(false, m_mappers.dineOrders, "insertNewOrder");
    for (const EntityMakanDitempat* other : open) {
        if (other->getMeja()->getId() != order->getMeja()->getId() || other->getId() == order->getId())
            continue;
        qDebug() << "sama" << other->getId();
        addError("meja", tr("Meja sudah terisi"));
        return false;
    }
    return written(m_mappers.dineOrders->insert(order), m_mappers.dineOrders, "insertNewOrder");
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

void BusinessPenjualan::setDineStatus(EntityMakanDitempat* order, int status)
{
    order->setStatus(status);
    updateStatusMakanDitempat(order);
}

bool BusinessPenjualan::makanDitempatSelesai(EntityMakanDitempat* order)
{
    return written(m_mappers.dineOrders->markDone(order->getId()), m_mappers.dineOrders, "makanDitempatSelesai");
}

// --- invoices ------------------------------------------------------------------------------------------------------

DataMapperInvoiceLink* BusinessPenjualan::mapperOf(IInvoice* sale) const
{
    const auto* link = dynamic_cast<KorEntity*>(sale);
    if (!link)
        return nullptr;
    const QString type = link->metaObject()->className();
    if (type == "EntityInvoiceMakanDitempat")
        return m_mappers.dineInvoices;
    if (type == "EntityInvoiceFastFood")
        return m_mappers.fastFoodInvoices;
    if (type == "EntityInvoiceBawaPulang")
        return m_mappers.takeAwayInvoices;
    return nullptr;
}

bool BusinessPenjualan::insertInvoice(IInvoice* sale)
{
    DataMapperInvoiceLink* mapper = mapperOf(sale);
    if (!mapper) {
        addError("insertInvoice", tr("mapper not found"));
        return false;
    }
    setInvoiceStatus(sale->getInvoice());
    if (!written(mapper->insert(dynamic_cast<KorEntity*>(sale)), mapper, "insertInvoice"))
        return false;
    // What follows stands outside the invoice's transaction: the sale is kept even if the order's status is not.
    if (const auto* dine = dynamic_cast<EntityInvoiceMakanDitempat*>(sale))
        followInvoices(dine->getMakanDitempat());
    else if (auto* takeAway = dynamic_cast<EntityInvoiceBawaPulang*>(sale))
        updateStatusBawaPulang(takeAway);
    return true;
}

void BusinessPenjualan::followInvoices(EntityMakanDitempat* order)
{
    EntityPool sums;
    const EntityPoolScope scope(sums);
    m_mappers.dineInvoices->clearError();
    const QList<EntityInvoiceMakanDitempat*> all = m_mappers.dineInvoices->findMoneyOfOrder(order->getId());
    if (m_mappers.dineInvoices->hasError()) {
        addError("insertInvoice", m_mappers.dineInvoices->takeError());
        return;
    }
    qint64 paid = 0;
    qint64 grandTotal = 0;
    for (const EntityInvoiceMakanDitempat* one : all) {
        const Invoice* invoice = one->getInvoice();
        paid += qint64(invoice->getAmountPaid()->rawAmount()) + invoice->getOtherPayment()->rawAmount();
        grandTotal += invoice->getGrandTotal()->rawAmount();
    }
    setDineStatus(order, orderStatusOfMoney(paid, grandTotal));
}

bool BusinessPenjualan::updateInvoice(IInvoice* sale)
{
    DataMapperInvoiceLink* mapper = mapperOf(sale);
    if (!mapper) {
        addError("updateInvoice", tr("mapper not found"));
        return false;
    }
    setInvoiceStatus(sale->getInvoice());
    if (!written(mapper->update(dynamic_cast<KorEntity*>(sale)), mapper, "updateInvoice"))
        return false;
    // From this invoice alone, unlike the first save: other invoices of a split order are not asked here.
    if (const auto* dine = dynamic_cast<EntityInvoiceMakanDitempat*>(sale))
        setDineStatus(dine->getMakanDitempat(), orderStatusOfInvoice(*sale->getInvoice()));
    else if (auto* takeAway = dynamic_cast<EntityInvoiceBawaPulang*>(sale))
        updateStatusBawaPulang(takeAway);
    return true;
}

EntityInvoiceMakanDitempat* BusinessPenjualan::findInvoiceMakanDitempat(int id)
{
    return static_cast<EntityInvoiceMakanDitempat*>(
        read(m_mappers.dineInvoices->findById(id), m_mappers.dineInvoices, "find"));
}

EntityInvoiceFastFood* BusinessPenjualan::findInvoiceFastFood(int id)
{
    return static_cast<EntityInvoiceFastFood*>(
        read(m_mappers.fastFoodInvoices->findById(id), m_mappers.fastFoodInvoices, "find"));
}

EntityInvoiceBawaPulang* BusinessPenjualan::findInvoiceBawaPulang(int id)
{
    return static_cast<EntityInvoiceBawaPulang*>(
        read(m_mappers.takeAwayInvoices->findById(id), m_mappers.takeAwayInvoices, "find"));
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

bool BusinessPenjualan::clearTransactions()
{
    // What refers to others goes first; the cascade reaches transaction tables only.
    for (KorDataMapper* mapper : QList<KorDataMapper*>{
             m_mappers.commissions, m_mappers.receivables, m_mappers.dineInvoices, m_mappers.fastFoodInvoices,
             m_mappers.takeAwayInvoices, m_mappers.invoices, m_mappers.dineOrders, m_mappers.takeAwayOrders}) {
        if (mapper && !written(mapper->truncate(true), mapper, "clearTransactions"))
            return false;
    }
    return true;
}
