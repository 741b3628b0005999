#pragma once

#include "kor/business/KorBusinessLogic.h"

#include <QDate>
#include <QHash>

class DataMapperItemHistory;
class DataMapperStockTake;
class DataMapperStokAwal;

/** The service of the stock: how much of an item is on hand, and the adjustments that fix it. */
class BusinessInventory final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_STOCKTAKE = 10, DELETE_STOCKTAKE = 11 };
    Q_ENUM(PERMISSIONS)

    BusinessInventory(QObject* parent, DataMapperStockTake* stockTakes, DataMapperStokAwal* balances,
                      DataMapperItemHistory* history);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /**
     * What the last count at or before the date found, or else the beginning balance, with all that moved since. What
     * moved on the day of the count counts on top of it. Nothing keeps the figure from being negative.
     */
    [[nodiscard]] int getQuantityOnHand(const KorEntity* item, const QDate& date);
    /** The same figure for every item, by its id, in one statement. */
    [[nodiscard]] QHash<int, int> quantitiesOnHand(const QDate& date);

private:
    DataMapperStockTake* m_stockTakes;
    DataMapperStokAwal* m_balances;
    DataMapperItemHistory* m_history;
};
