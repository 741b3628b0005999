#include "zavel/order/OrderStatus.h"
#include "zavel/service/BusinessPenjualan.h"

#include "app/context/EntityPool.h"
#include "app/persistence/FoundRows.h"
#include "kor/business/KorServiceTransaction.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/Invoice.h"
#include "pos/invoice/InvoiceStatus.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

// The sales of all kinds: dine-in, counter and take-away.

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
    // Outside the invoice's transaction: the sale stays saved even if setting the order's status fails.
    (void)setOrderStatus(sale, true);
    return true;
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
    (void)setOrderStatus(sale, false);
    return true;
}

bool BusinessPenjualan::setOrderStatus(IInvoice* sale, bool isFirst)
{
    if (auto* takeAway = dynamic_cast<EntityInvoiceBawaPulang*>(sale))
        return updateStatusBawaPulang(takeAway);
    const auto* dine = dynamic_cast<EntityInvoiceMakanDitempat*>(sale);
    if (!dine)
        return true;
    if (isFirst)
        return followInvoices(dine->getMakanDitempat());
    // Unlike at the first save, only this invoice decides; other invoices of a split order are not read.
    return setDineStatus(dine->getMakanDitempat(), orderStatusOfInvoice(*sale->getInvoice()));
}

bool BusinessPenjualan::finishInvoice(IInvoice* sale, bool isFirst)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    EntityOrder* order = nullptr;
    const EntityOrder* fresh = nullptr;
    if (const auto* dine = dynamic_cast<EntityInvoiceMakanDitempat*>(sale)) {
        order = dine->getMakanDitempat();
        fresh = findOrder(order->getId());
    } else if (const auto* takeAway = dynamic_cast<EntityInvoiceBawaPulang*>(sale)) {
        order = takeAway->getBawaPulang();
        fresh = findOrderBawaPulang(order->getId());
    }
    if (fresh)
        order->setVersion(fresh->getVersion());
    return !hasError() && setOrderStatus(sale, isFirst);
}

QList<EntityPenjualanInfo*> BusinessPenjualan::searchPenjualan(const SalesFilter& filter)
{
    return read(m_mappers.salesList->search(filter), m_mappers.salesList, "searchPenjualan");
}

std::shared_ptr<FoundRows> BusinessPenjualan::openSales(const SalesFilter& filter)
{
    const auto readOn = [this, filter](const FoundRows::Place& behind, int atMost) {
        return read(m_mappers.salesList->readList(filter, behind, atMost), m_mappers.salesList, "searchPenjualan");
    };
    return std::make_shared<FoundRows>(m_mappers.salesList, "invoice_invoice_date", readOn);
}

QList<EntityPenjualanInfo*> BusinessPenjualan::searchPendingInvoiceForAgentCommision(int agentId)
{
    return read(m_mappers.salesList->findPendingOfAgent(agentId), m_mappers.salesList,
                "searchPendingInvoiceForAgentCommision");
}

bool BusinessPenjualan::deleteSales(Invoice* invoice)
{
    const QString operation = "deleteSales";
    const QHash<QString, DataMapperInvoiceLink*> mappers{{Invoice::Dine, m_mappers.dineInvoices},
                                                         {Invoice::FastFood, m_mappers.fastFoodInvoices},
                                                         {Invoice::TakeAway, m_mappers.takeAwayInvoices}};
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const auto removeAll = [&] {
        DataMapperInvoiceLink* links = mappers.value(invoice->getInvoiceType());
        if (!links) {
            // Returning false rolls the transaction back; left open, it would include the next saves.
            addError(operation, tr("mapper not found"));
            return false;
        }
        // A row that cannot be deleted is recorded as an error and the loop continues: deleting the invoice at the end
        // decides the result.
        const auto removeEach = [&](const auto& rows, KorDataMapper* mapper) {
            for (KorEntity* row : rows)
                written(mapper->remove(row), mapper, operation);
        };
        if (KorEntity* link = read(links->findByInvoiceId(invoice->getId()), links, operation)) {
            // For a split order all links are deleted; its other invoices remain without a link.
            if (const auto* dine = qobject_cast<EntityInvoiceMakanDitempat*>(link))
                removeEach(
                    read(m_mappers.dineInvoices->findMoneyOfOrder(dine->getMakanDitempat()->getId()), links, operation),
                    links);
            else
                removeEach(QList<KorEntity*>{link}, links);
        }
        DataMapperInvoiceDetail* lines = m_mappers.invoices->detailMapper();
        removeEach(read(lines->findByDocument(invoice->getId()), lines, operation), lines);
        return written(m_mappers.invoices->remove(invoice), m_mappers.invoices, operation);
    };
    // Locks the invoice first, as a save does; another lock order could deadlock.
    return inOneTransaction(*this, operation, removeAll, {}, {m_mappers.invoices->removalLockOf(invoice->getId())});
}

// --- figures by day, by month and by item ----------------------------------------------------------------------------

QList<EntitySalesSummaryInfo*> BusinessPenjualan::getDailySales(const QDate& from, const QDate& to, int userId)
{
    return read(m_mappers.salesList->getDailySales(from, to, userId), m_mappers.salesList, "getDailySales");
}

QList<EntitySalesSummaryInfo*> BusinessPenjualan::getMonthlySales(const QDate& from, const QDate& to, int userId)
{
    return read(m_mappers.salesList->getMonthlySales(from, to, userId), m_mappers.salesList, "getMonthlySales");
}

QList<EntitySoldItem*> BusinessPenjualan::getSoldItems(const QDate& from, const QDate& to, const QString& direction,
                                                       const QString& sortColumn, const QString& itemType)
{
    return read(m_mappers.salesList->getSoldItems(from, to, direction, sortColumn, itemType), m_mappers.salesList,
                "getSoldItems");
}
