#pragma once

#include "app/persistence/AppDataMapper.h"
#include "app/persistence/FoundRows.h"

class DataMapperEmployee;
class DataMapperInvoice;
class DataMapperMember;
class DataMapperUser;
class EntityPenjualanInfo;
class EntitySalesSummaryInfo;
class EntitySoldItem;
struct SalesFilter;

/** Reads the sales of all three kinds: invoices with links, orders, users and waitresses. Has no table of its own. */
class DataMapperPenjualanInfo final : public AppDataMapper
{
    Q_OBJECT

public:
    struct Partners
    {
        DataMapperInvoice* invoices;
        KorDataMapper* dineInvoices;
        KorDataMapper* fastFoodInvoices;
        KorDataMapper* takeAwayInvoices;
        KorDataMapper* dineOrders;
        DataMapperUser* users;
        DataMapperMember* members;
        DataMapperEmployee* employees;
    };

    DataMapperPenjualanInfo(QObject* parent, Partners partners);

    KorEntity* createEntity() override;
    bool createTable(int) override { return true; }
    using AppDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;

    // The latest sales first.
    [[nodiscard]] QList<EntityPenjualanInfo*> search(const SalesFilter& filter);
    /**
     * The same, as a list reads it: at most so many rows behind the place, with what the list shows and no more. Null
     * after a failure.
     */
    [[nodiscard]] std::unique_ptr<KorQuery> readList(const SalesFilter& filter, const FoundRows::Place& behind,
                                                     int atMost);
    /** The agent's sales whose commission is not paid yet. */
    [[nodiscard]] QList<EntityPenjualanInfo*> findPendingOfAgent(int agentId);

    // Sums, oldest first; both dates are inclusive, and user -1 means all users.
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getDailySales(const QDate& from, const QDate& to, int userId);
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getMonthlySales(const QDate& from, const QDate& to, int userId);
    /** Sorted by one of the columns kode, nama, item_type, total_qty or total_price; any other name is refused. */
    [[nodiscard]] QList<EntitySoldItem*> getSoldItems(const QDate& from, const QDate& to, const QString& direction,
                                                      const QString& sortColumn, const QString& itemType);

private:
    [[nodiscard]] KorConditions conditionsOf(const SalesFilter& filter);
    /** Queries for the ids of the sales that the filter lets through, the one that finds fewest in front. */
    [[nodiscard]] static QStringList idsOf(const SalesFilter& filter);
    [[nodiscard]] QString listStatement() const;
    [[nodiscard]] QList<EntityPenjualanInfo*> latestFirst(KorConditions& conditions);
    [[nodiscard]] QList<EntitySalesSummaryInfo*> salesBy(const QString& period, const QString& name, const QDate& from,
                                                         const QDate& to, int userId);
    [[nodiscard]] QString typeNameOf(KorQuery& query) const;

    Partners m_partners;
};
