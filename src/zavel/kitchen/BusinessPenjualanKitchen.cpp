#include "zavel/service/BusinessPenjualan.h"

#include "app/context/AppContext.h"
#include "app/context/EntityPool.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/kitchen/EntityQueue.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/EntityBawaPulang.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"

namespace
{
EntityQueue* queued(OrderKind kind, EntityOrder* order)
{
    auto* row = new EntityQueue(AppContext::instance()->entityPool());
    row->setId(order->getId());
    row->setType(kind);
    row->setOrder(order);
    // A new order has no update time yet: it has been waiting since it was created.
    row->setDateTime(order->getUpdatedTime().isValid() ? order->getUpdatedTime() : order->getCreatedTime());
    return row;
}

bool writeKitchenStatus(KorDataMapper* lines, int id, const QString& text, QString* failure)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    // Read again: a waiter may have changed the line since the kitchen saw it.
    auto* line = static_cast<EntityOrderDetail*>(lines->findById(id));
    if (line) {
        line->setKitchenStatus(text);
        if (lines->update(line))
            return true;
    }
    *failure = line || lines->hasError() ? lines->takeError()
                                         : BusinessPenjualan::tr("Can not find entity with id: %1").arg(id);
    return false;
}
} // namespace

QList<EntityQueue*> BusinessPenjualan::getQueue(const QString& text)
{
    const QList<EntityMakanDitempat*> dine = getMakanDitempatList(0, text);
    // After a lost connection the second query would wait for the server again.
    if (hasError())
        return {};
    const QList<EntityBawaPulang*> takeAway = getBawaPulangList(0);
    QList<EntityQueue*> queue;
    for (EntityMakanDitempat* order : dine)
        queue.append(queued(DineOrder, order));
    for (EntityBawaPulang* order : takeAway)
        queue.append(queued(TakeAwayOrder, order));
    return queue;
}

bool BusinessPenjualan::setKitchenStatus(EntityMakanDitempatDetail* line, const QString& text)
{
    QString failure;
    const bool done = writeKitchenStatus(m_mappers.dineOrders->lineMapper(), line->getId(), text, &failure);
    if (!done)
        addError("setKitchenStatus", failure);
    return done;
}

bool BusinessPenjualan::setKitchenStatus(EntityBawaPulangDetail* line, const QString& text)
{
    QString failure;
    const bool done = writeKitchenStatus(m_mappers.takeAwayOrders->lineMapper(), line->getId(), text, &failure);
    if (!done)
        addError("setKitchenStatus", failure);
    return done;
}

int BusinessPenjualan::countOpenOrdersOfOtherCurrency(const QString& sign)
{
    const QString operation = "countOpenOrdersOfOtherCurrency";
    return read(m_mappers.dineOrders->countOpenOfOtherCurrency(sign), m_mappers.dineOrders, operation) +
           read(m_mappers.takeAwayOrders->countOpenOfOtherCurrency(sign), m_mappers.takeAwayOrders, operation);
}
