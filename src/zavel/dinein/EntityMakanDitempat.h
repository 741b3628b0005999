#pragma once

#include "zavel/order/EntityOrder.h"
#include "zavel/tables/EntityMeja.h"

/** An order on a table. */
class EntityMakanDitempat final : public EntityOrder
{
    Q_OBJECT
    KOR_REFERENCE(EntityMeja, Meja)
    /** The codes of the tables that the order was on before, joined by ">". */
    KOR_PROPERTY(QString, PindahMeja, QString())

public:
    using EntityOrder::EntityOrder;

    /** Moves the order to another table and records the table that it leaves. */
    void moveTo(EntityMeja* table);
    /** The codes of the former tables and of the current one: "A>B". */
    [[nodiscard]] QString tableTrail() const;
};
