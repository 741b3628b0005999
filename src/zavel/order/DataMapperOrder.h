#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/masterdata/item/ItemLineMapper.h"
#include "zavel/order/EntityOrder.h"

class DataMapperMember;

/** Mapper of the lines of one kind of order. */
class DataMapperOrderDetail : public ItemLineMapper
{
    Q_OBJECT

public:
    [[nodiscard]] QStringList indexStatements() const override;
    /** Number of open orders in the order table with a line in another currency than this sign; -1 on an error. */
    [[nodiscard]] int countOrdersOfOtherCurrency(const QString& orderTable, const QString& sign);

protected:
    DataMapperOrderDetail(QObject* parent, const QString& tableName, const QString& orderColumn,
                          const QString& orderProperty, KorDataMapper* orders, const ItemPartners& partners);
};

/** Mapper of one kind of order: an order is always read with its lines, and written with them in one transaction. */
class DataMapperOrder : public AppLinedDocumentMapper<EntityOrder>
{
    Q_OBJECT

public:
    using AppLinedDocumentMapper::AppLinedDocumentMapper;

    bool remove(KorEntity* order) override;
    /** Number of open orders with a line in another currency than this sign; -1 on an error. */
    [[nodiscard]] int countOpenOfOtherCurrency(const QString& sign);
    /** Writes the status alone. */
    bool updateStatus(EntityOrder* order);
    /** Sets the order to done, even if it was saved by others since it was opened. */
    bool markDone(int orderId);
    /** Orders by their ids, with lines; two statements. */
    [[nodiscard]] QList<EntityOrder*> findByIds(const QList<int>& ids);

protected:
    /** Same wording as in the partial indexes; otherwise the planner would not use them. */
    [[nodiscard]] static QString openOrders();
    /** With their lines: two statements, independent of the number of orders. */
    QList<EntityOrder*> findOrders(const KorConditions& conditions);
    [[nodiscard]] virtual QString statusFailure() const = 0;
};
