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
    /** Open orders of the table that have a line priced in another currency than this sign; -1 with an error. */
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
    /** Open orders with a line priced in another currency than this sign; -1 with an error. */
    [[nodiscard]] int countOpenOfOtherCurrency(const QString& sign);
    /** Writes the status alone. */
    bool updateStatus(EntityOrder* order);
    /** Writes that the guests are served and gone, whatever was saved since the order was opened. */
    bool markDone(int orderId);
    /** Orders by their ids, with lines; two statements. */
    [[nodiscard]] QList<EntityOrder*> findByIds(const QList<int>& ids);

protected:
    /** In the words of the partial indexes, or the planner would not see that they answer it. */
    [[nodiscard]] static QString openOrders();
    /** With their lines: two statements, whatever their number. */
    QList<EntityOrder*> findOrders(const KorConditions& conditions);
    [[nodiscard]] virtual QString statusFailure() const = 0;
};
