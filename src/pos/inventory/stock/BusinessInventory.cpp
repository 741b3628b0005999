#include "pos/inventory/stock/BusinessInventory.h"

#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/DataMapperStockTake.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/inventory/stock/StockMovements.h"
#include "pos/masterdata/item/DataMapperStokAwal.h"
#include "pos/masterdata/item/EntityStokAwal.h"

#include <QDebug>

#include <algorithm>

BusinessInventory::BusinessInventory(QObject* parent, DataMapperStockTake* stockTakes, DataMapperStokAwal* balances,
                                     DataMapperItemHistory* history)
    : KorBusinessLogic("Inventory", stockTakes, parent), m_stockTakes(stockTakes), m_balances(balances),
      m_history(history)
{}

QList<KorPermission> BusinessInventory::getPermissions() const
{
    return {{INSERT_STOCKTAKE, tr("Insert Inventory Adjustment")},
            {DELETE_STOCKTAKE, tr("Delete Inventory Adjustment")}};
}

bool BusinessInventory::clearTransactions()
{
    const bool cleared = clearTables({m_stockTakes, m_history});
    return written(m_balances->clearTransactions(), m_balances, "clearTransactions") && cleared;
}

// --- the quantity on hand ------------------------------------------------------------------------------------------

int BusinessInventory::getQuantityOnHand(const KorEntity* item, const QDate& date)
{
    StockMovements::OnHand figures;
    KorQuery query;
    if (!StockMovements::onHand(query, item->getId(), date, figures))
        addError("getQuantityOnHand", query.failure());
    qDebug() << " laswt:" << figures.base << " qtyAcq:" << figures.acquired << " qtyUsed:" << figures.used
             << " qtyReturned:" << figures.returned;
    return figures.quantity();
}

BusinessInventory::Movements BusinessInventory::movementsOf(const KorEntity* item, const QDate& day)
{
    const auto moved = [&](StockMovements::Kind kind) {
        int quantity = 0;
        KorQuery query;
        if (!StockMovements::quantity(query, kind, item->getId(), day, day, quantity))
            addError("movementsOf", query.failure());
        return quantity;
    };
    Movements sums;
    sums.acquired = moved(StockMovements::Acquired);
    sums.used = moved(StockMovements::Used);
    sums.returned = moved(StockMovements::Returned);
    return sums;
}

QHash<int, int> BusinessInventory::quantitiesOnHand(const QDate& date)
{
    QHash<int, int> quantities;
    QString error;
    if (!readOnHand(date, quantities, error))
        addError("quantitiesOnHand", error);
    return quantities;
}

bool BusinessInventory::readOnHand(const QDate& date, QHash<int, int>& quantities, QString& error) const
{
    KorQuery query;
    if (StockMovements::onHand(query, date, quantities))
        return true;
    error = query.failure();
    return false;
}

// --- adjustments ---------------------------------------------------------------------------------------------------

QList<KorEntity*> BusinessInventory::findAll(const QString& code)
{
    return read(m_stockTakes->findAll(code), m_stockTakes, "findall");
}

bool BusinessInventory::addInventoryAdjustment(EntityStockTake* take)
{
    const QString operation = "addInventoryAdjustment";
    m_onlyJournalLags = written(m_stockTakes->insert(take), m_stockTakes, operation);
    return m_onlyJournalLags && writeMovement(take, operation);
}

bool BusinessInventory::writeMovement(EntityStockTake* take, const QString& operation)
{
    const int difference = take->getQtyAdj();
    const ItemMovement movement{EntityItemHistory::ADJUSMENT,
                                take->getId(),
                                take->getItem(),
                                std::max(difference, 0),
                                std::max(-difference, 0),
                                take->getItem()->getHargaBeli(),
                                take->getStockTakeDate(),
                                QString()};
    return written(m_history->write(movement), m_history, operation);
}

bool BusinessInventory::stockTakeRemove(EntityStockTake* take)
{
    const QString operation = "stockTakeRemove";
    m_onlyJournalLags = written(m_stockTakes->remove(take), m_stockTakes, operation);
    return m_onlyJournalLags && removeMovement(take, operation);
}

bool BusinessInventory::removeMovement(EntityStockTake* take, const QString& operation)
{
    return written(m_history->removeLine(EntityItemHistory::ADJUSMENT, take->getId()), m_history, operation);
}

// --- the stock card ------------------------------------------------------------------------------------------------

QList<EntityItemHistory*> BusinessInventory::findAllKartuStok(const ItemHistoryFilter& filter)
{
    if (filter.itemId == KorNoValue)
        return {};
    QList<EntityItemHistory*> rows = read(m_history->findAll(filter), m_history, "findAllKartuStok");
    rows.prepend(beginningRow(filter.itemId));
    int balance = rows.first()->getQtyRemain();
    for (int i = 1; i < rows.size(); ++i) {
        EntityItemHistory* row = rows[i];
        balance += std::max(row->getQtyIn(), 0) - std::max(row->getQtyOut(), 0);
        row->setQtyRemain(balance);
    }
    return rows;
}

EntityItemHistory* BusinessInventory::beginningRow(int itemId)
{
    auto* row = new EntityItemHistory(AppDataMapper::entityParent());
    row->setTransType(EntityItemHistory::BEGINING_BALANCE);
    // Imported items may have no balance.
    if (const EntityStokAwal* balance = read(m_balances->findByItemId(itemId), m_balances, "findAllKartuStok")) {
        row->setQtyIn(balance->getJumlah());
        row->setQtyRemain(balance->getJumlah());
        row->setDate(balance->getDateTime().date());
    }
    return row;
}
