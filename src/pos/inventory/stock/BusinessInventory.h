#pragma once

#include "kor/business/KorBusinessLogic.h"
#include "pos/masterdata/item/ItemStock.h"

class DataMapperItemHistory;
class EntityItemHistory;
class EntityStockTake;
struct ItemHistoryFilter;
class DataMapperStockTake;
class DataMapperStokAwal;

/** The service of the stock: the quantity on hand of an item, adjustments, and the stock card. */
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
    /** Deletes adjustments and journal and sets every beginning balance to zero. */
    bool clearTransactions() override;

    /**
     * The quantity of the last adjustment at or before the date, or else the beginning balance, plus all movements
     * since, including those on the day of the adjustment. It may be negative. After a failure the result is wrong and
     * the service has the error.
     */
    [[nodiscard]] int getQuantityOnHand(const KorEntity* item, const QDate& date) override;
    struct Movements
    {
        int acquired = 0;
        int used = 0;
        int returned = 0;

        [[nodiscard]] bool isEmpty() const { return acquired == 0 && used == 0 && returned == 0; }
    };
    /**
     * The movements on this day, which count on top of an adjustment on the same day. Errors are kept in the service.
     */
    [[nodiscard]] Movements movementsOf(const KorEntity* item, const QDate& day);
    /** The same for every item by id, with one statement. */
    [[nodiscard]] QHash<int, int> quantitiesOnHand(const QDate& date);
    [[nodiscard]] bool readOnHand(const QDate& date, QHash<int, int>& quantities, QString& error) const override;

    /** The adjustments of the item with this code; all of them for an empty code. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    /** Saves the adjustment, then its row in the journal. If only the row fails, the adjustment stays saved. */
    bool addInventoryAdjustment(EntityStockTake* take);
    bool stockTakeRemove(EntityStockTake* take);
    /**
     * After either returned false: true if only the journal row failed, and the adjustment itself is saved or deleted.
     */
    [[nodiscard]] bool onlyJournalLags() const { return m_onlyJournalLags; }
    /** Retries writing or deleting the journal row. */
    bool finishAdjustment(EntityStockTake* take) { return writeMovement(take, "addInventoryAdjustment"); }
    bool finishRemoval(EntityStockTake* take) { return removeMovement(take, "stockTakeRemove"); }

    /**
     * The stock card of an item: its beginning balance, then the journal rows of the period with the running balance.
     * It always starts with the full beginning balance and ignores movements before the period. Empty without an item.
     */
    [[nodiscard]] QList<EntityItemHistory*> findAllKartuStok(const ItemHistoryFilter& filter);

private:
    bool writeMovement(EntityStockTake* take, const QString& operation);
    bool removeMovement(EntityStockTake* take, const QString& operation);
    [[nodiscard]] EntityItemHistory* beginningRow(int itemId);

    DataMapperStockTake* m_stockTakes;
    DataMapperStokAwal* m_balances;
    DataMapperItemHistory* m_history;
    bool m_onlyJournalLags = false;
};
