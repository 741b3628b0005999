#pragma once

#include "zavel/order/EntityOrder.h"
#include "zavel/order/OrderKind.h"

#include <memory>

/** One open order in the kitchen's queue; built at each refresh, never stored. */
class EntityQueue final : public KorEntity
{
    Q_OBJECT
    /** An OrderKind: the kind of the order. */
    KOR_PROPERTY(int, Type, DineOrder)
    /** Borrowed, with its lines. */
    KOR_REFERENCE(EntityOrder, Order)
    /** When the order was taken or last changed; each change restarts the waiting time. */
    KOR_PROPERTY(QDateTime, DateTime, QDateTime())
    KOR_PROPERTY(int, Status, NEW)

public:
    /** Nothing reads or changes this status yet. */
    enum QUEUE_STATUS { NEW = 1, READED = 2, CANCELED = 3 };
    Q_ENUM(QUEUE_STATUS)

    using KorEntity::KorEntity;

    /**
     * A copy of the order with only the lines marked as new or changed. The marks are never cleared, so these lines
     * count as an addition until the order is done.
     */
    [[nodiscard]] std::unique_ptr<EntityOrder> addition() const;
};
