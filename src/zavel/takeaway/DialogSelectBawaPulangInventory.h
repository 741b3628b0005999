#pragma once

#include "zavel/order/DialogSelectInventory.h"

/** Picks a stock item to take away. */
class DialogSelectBawaPulangInventory final : public DialogSelectInventory
{
    Q_OBJECT

public:
    using DialogSelectInventory::DialogSelectInventory;
};
