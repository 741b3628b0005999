#pragma once

#include "zavel/order/EntityOrder.h"

/** An order to take away. */
class EntityBawaPulang final : public EntityOrder
{
    Q_OBJECT

public:
    /** Same statuses as for all orders. */
    using BAWA_PULANG_STATUS = MAKAN_DITEMPAT_STATUS;

    using EntityOrder::EntityOrder;
};
