#include "zavel/order/DataMapperOrder.h"

#include "app/context/AppContext.h"
#include "app/context/EntityPool.h"
#include "kor/entity/KorMetaDataMap.h"

// --- lines ---------------------------------------------------------------------------------------------------------

DataMapperOrderDetail::DataMapperOrderDetail(QObject* parent, const QString& tableName, const QString& orderColumn,
                                             const QString& orderProperty, KorDataMapper* orders,
                                             const ItemPartners& partners)
    : ItemLineMapper(parent)
{
    metaData()->setTableName(tableName);
    documentColumn(orderColumn, orderProperty, orders);
    itemColumn(partners);
    column("qty", "integer not null", "Qty");
    column("status", "integer not null", "Status");
    moneyColumns("total", "Total");
    moneyColumns("price_each", "PriceEach");
    column("description", "varchar(50) null", "Description");
    column("kitchen_status", "varchar(255) null", "KitchenStatus");
}

QStringList DataMapperOrderDetail::indexStatements() const
{
    return {index("order", '(' + documentColumn() + ')'), index("item_id", "(item_id)")};
}

int DataMapperOrderDetail::countOrdersOfOtherCurrency(const QString& orderTable, const QString& sign)
{
    KorQuery query;
    const bool read =
        execute(query,
                "select count(distinct o.id) from " + orderTable + " o join " + tableName() + " line on line." +
                    documentColumn() + " = o.id where o.status <> :done and line.price_each_currency <> :sign",
                {{":done", int(EntityOrder::DONE)}, {":sign", sign}}) &&
        query.next();
    return read ? query.value(0).toInt() : -1;
}

// --- orders --------------------------------------------------------------------------------------------------------

QList<EntityOrder*> DataMapperOrder::findByIds(const QList<int>& ids)
{
    return findOrders(KorConditions().oneOf(tableName() + ".id", ids));
}

QString DataMapperOrder::openOrders()
{
    return QString("status is null or (status is not null and status <> %1)").arg(EntityOrder::DONE);
}

QList<EntityOrder*> DataMapperOrder::findOrders(const KorConditions& conditions)
{
    const QList<EntityOrder*> orders = castAll<EntityOrder>(findMany(conditions));
    if (orders.isEmpty())
        return orders;
    QList<int> ids;
    for (const EntityOrder* order : orders)
        ids.append(order->getId());
    QHash<int, EntityOrder::Lines> linesOf;
    const auto lines = castAll<EntityOrderDetail>(lineMapper()->findByDocuments(ids));
    if (lineMapper()->hasError()) {
        setError(lineMapper()->takeError());
        return {};
    }
    for (EntityOrderDetail* line : lines)
        linesOf[line->getOrderId()].append(line);
    for (EntityOrder* order : orders)
        order->setDetails(linesOf.value(order->getId()));
    return orders;
}

int DataMapperOrder::countOpenOfOtherCurrency(const QString& sign)
{
    const int count = static_cast<DataMapperOrderDetail*>(lineMapper())->countOrdersOfOtherCurrency(tableName(), sign);
    if (lineMapper()->hasError())
        setError(lineMapper()->takeError());
    return count;
}

bool DataMapperOrder::remove(KorEntity* order) { return removeWithLines(order, linesOf(order)); }

bool DataMapperOrder::updateStatus(EntityOrder* order)
{
    KorQuery query;
    const int user = AppContext::instance()->currentUserId();
    const EntityMember* member = order->getMember();
    // Also writes the member of the bill: later payments of members are searched by the order's member too.
    const bool sent = execute(
        query,
        "update " + tableName() +
            " set status = :status, member_id = :member, updatedBy = :user, updatedTime = now(), version = version+1 "
            "where id = :id and version = :version",
        {{":status", order->getStatus()},
         {":member", member ? QVariant(member->getId()) : QVariant(QVariant::Int)},
         {":user", user == KorNoValue ? QVariant(QVariant::Int) : QVariant(user)},
         {":id", order->getId()},
         {":version", order->getVersion()}});
    if (sent && query.numRowsAffected() > 0) {
        order->setVersion(order->getVersion() + 1);
        return true;
    }
    if (sent)
        explainFailedWrite(order);
    setError(statusFailure() + " \r\n " + takeError());
    return false;
}

bool DataMapperOrder::markDone(int orderId)
{
    // Read again: every save since the order was opened has raised the row's version.
    EntityPool pool;
    const EntityPoolScope scope(pool);
    auto* fresh = static_cast<EntityOrder*>(findById(orderId));
    if (!fresh) {
        if (!hasError())
            setError(tr("Can not find entity with id: %1").arg(orderId));
        return false;
    }
    fresh->setStatus(EntityOrder::DONE);
    return updateStatus(fresh);
}
