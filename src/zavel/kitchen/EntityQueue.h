#pragma once

#include "zavel/order/EntityOrder.h"
#include "zavel/order/OrderKind.h"

#include <memory>

/** One open order as the kitchen sees it; computed at each look and never stored. */
class EntityQueue final : public KorEntity
{
    Q_OBJECT
    /** An OrderKind: it tells what the order is. */
    KOR_PROPERTY(int, Type, DineOrder)
    /** Borrowed, with its lines. */
    KOR_REFERENCE(EntityOrder, Order)
    /** When the order was taken or last changed: each change starts its clock anew. */
    KOR_PROPERTY(QDateTime, DateTime, QDateTime())
    KOR_PROPERTY(int, Status, NEW)

public:
    /** Declared for the kitchen; nothing reads or changes the status yet. */
    enum QUEUE_STATUS { NEW = 1, READED = 2, CANCELED = 3 };
    Q_ENUM(QUEUE_STATUS)

    using KorEntity::KorEntity;

    /**
     * A copy of the order that holds the lines marked as new or changed, and no others. The marks are never taken off,
     * so that these lines count as an addition until the order is done.
     */
    [[nodiscard]] std::unique_ptr<EntityOrder> addition() const;
};
