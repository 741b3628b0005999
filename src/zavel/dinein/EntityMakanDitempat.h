#pragma once

#include "zavel/order/EntityOrder.h"
#include "zavel/tables/EntityMeja.h"

/** An order that stands on a table. */
class EntityMakanDitempat final : public EntityOrder
{
    Q_OBJECT
    KOR_REFERENCE(EntityMeja, Meja)
    /** The codes of the tables that the order came from, joined by ">". */
    KOR_PROPERTY(QString, PindahMeja, QString())

public:
    using EntityOrder::EntityOrder;

    /** Puts the order on another table and notes the one that it leaves. */
    void moveTo(EntityMeja* table);
    /** The code of its table, and in front of it those that the order has left: "A>B". */
    [[nodiscard]] QString tableTrail() const;
};
