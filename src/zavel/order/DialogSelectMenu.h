#pragma once

#include "zavel/order/OrderItemPicker.h"

/** Picks a menu or service item for an order. */
class DialogSelectMenu : public OrderItemPicker
{
    Q_OBJECT

public:
    DialogSelectMenu(EntityPool& items, QWidget* parent);
};
