#pragma once

#include "kor/business/KorBusinessLogic.h"
#include "pos/masterdata/item/ItemStock.h"

class DataMapperItemHistory;
class EntityItemHistory;
class EntityStockTake;
struct ItemHistoryFilter;
class DataMapperStockTake;
class DataMapperStokAwal;

/** The service of the stock: how much of an item is on hand, and the adjustments that fix it. */
class BusinessInventory final : public KorBusinessLogic, public ItemStock
{
    Q_OBJECT
    Q_INTERFACES(ItemStock)

public:
    enum PERMISSIONS { INSERT_STOCKTAKE = 10, DELETE_STOCKTAKE = 11 };
    Q_ENUM(PERMISSIONS)

    BusinessInventory(QObject* parent, DataMapperStockTake* stockTakes, DataMapperStokAwal* balances,
                      DataMapperItemHistory* history);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    /** Forgets adjustments and journal, and sets every beginning balance to nothing. */
    bool clearTransactions() override;

    /**
     * What the last count at or before the date found, or else the beginning balance, with all that moved since. What
     * moved on the day of the count counts on top of it. Nothing keeps the figure from being negative. After a failure
     * it is worth nothing, and the service holds the error.
     */
    [[nodiscard]] int getQuantityOnHand(const KorEntity* item, const QDate& date);
    struct Movements
    {
        int acquired = 0;
        int used = 0;
        int returned = 0;

        [[nodiscard]] bool isEmpty() const { return acquired == 0 && used == 0 && returned == 0; }
    };
    /** What comes on top of a count that is dated on this day; after a failure the service holds the error. */
    [[nodiscard]] Movements movementsOf(const KorEntity* item, const QDate& day);
    /** The same figure for every item, by its id, in one statement. */
    [[nodiscard]] QHash<int, int> quantitiesOnHand(const QDate& date) override;

    /** The adjustments of the item with this code; all of them for an empty code. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    /** Saves the adjustment and its row in the journal; when only the row fails, the adjustment stays all the same. */
    bool addInventoryAdjustment(EntityStockTake* take);
    bool stockTakeRemove(EntityStockTake* take);
    /** After either was false: the adjustment itself is saved, or gone, and only its row in the journal lags behind. */
    [[nodiscard]] bool onlyJournalLags() const { return m_onlyJournalLags; }
    /** Writes, or removes, that row. */
    bool finishAdjustment(EntityStockTake* take) { return writeMovement(take, "addInventoryAdjustment"); }
    bool finishRemoval(EntityStockTake* take) { return removeMovement(take, "stockTakeRemove"); }

    /**
     * The stock card of an item: its beginning balance, then the journal's rows of the period with the running
     * balance. The balance always begins in full, whatever moved before the period. Without an item there is none.
     */
    [[nodiscard]] QList<EntityItemHistory*> findAllKartuStok(const ItemHistoryFilter& filter);

private:
    /** From a day on where one is given, otherwise from the beginning; both limits count. */
    [[nodiscard]] Movements movements(const KorEntity* item, const QDate& from, const QDate& to,
                                      const QString& operation);
    bool writeMovement(EntityStockTake* take, const QString& operation);
    bool removeMovement(EntityStockTake* take, const QString& operation);
    [[nodiscard]] EntityItemHistory* beginningRow(int itemId);

    DataMapperStockTake* m_stockTakes;
    DataMapperStokAwal* m_balances;
    DataMapperItemHistory* m_history;
    bool m_onlyJournalLags = false;
};
