#pragma once

#include "zavel/order/DialogSelectInventory.h"

/** Picks a stock item at the counter. */
class DialogSelectFastFoodInventory final : public DialogSelectInventory
{
    Q_OBJECT

public:
    using DialogSelectInventory::DialogSelectInventory;
};
