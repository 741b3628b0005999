#pragma once

#include "zavel/order/DialogSelectMenu.h"

/** Picks a menu or service item at the counter. */
class DialogSelectFastFoodMenu final : public DialogSelectMenu
{
    Q_OBJECT

public:
    using DialogSelectMenu::DialogSelectMenu;
};
