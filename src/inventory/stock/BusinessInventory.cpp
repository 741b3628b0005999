#include "inventory/stock/BusinessInventory.h"

#include "app/context/EntityPool.h"
#include "inventory/stock/DataMapperItemHistory.h"
#include "inventory/stock/DataMapperStockTake.h"
#include "inventory/stock/DataMapperStokAwal.h"
#include "inventory/stock/EntityStockTake.h"
#include "inventory/stock/EntityStokAwal.h"
#include "inventory/stock/StockMovements.h"

#include <QDebug>

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

int BusinessInventory::getQuantityOnHand(const KorEntity* item, const QDate& date)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const EntityStockTake* take = read(m_stockTakes->getLastStockTake(item, date), m_stockTakes, "getQuantityOnHand");
    const EntityStokAwal* balance = read(m_balances->findByItemId(item->getId()), m_balances, "getQuantityOnHand");

    const int opening = balance ? balance->getJumlah() : 0;
    const int base = take ? take->getQty() : opening;
    const QDate start = take ? take->getStockTakeDate() : QDate();
    const int acquired = StockMovements::quantity(StockMovements::Acquired, item->getId(), start, date);
    const int used = StockMovements::quantity(StockMovements::Used, item->getId(), start, date);
    const int returned = StockMovements::quantity(StockMovements::Returned, item->getId(), start, date);
    qDebug() << " laswt:" << base << " qtyAcq:" << acquired << " qtyUsed:" << used << " qtyReturned:" << returned;
    return base + acquired - used - returned;
}

QHash<int, int> BusinessInventory::quantitiesOnHand(const QDate& date)
{
    QHash<int, int> quantities;
    KorQuery query;
    if (!StockMovements::onHand(query, date, quantities))
        addError("quantitiesOnHand", query.failure());
    return quantities;
}
