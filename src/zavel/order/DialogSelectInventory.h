#pragma once

#include "zavel/order/OrderItemPicker.h"

/** Picks a stock item for an order. */
class DialogSelectInventory : public OrderItemPicker
{
    Q_OBJECT

public:
    DialogSelectInventory(EntityPool& items, QWidget* parent);
};
