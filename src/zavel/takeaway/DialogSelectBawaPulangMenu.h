#pragma once

#include "zavel/order/DialogSelectMenu.h"

/** Picks a menu or service item to take away. */
class DialogSelectBawaPulangMenu final : public DialogSelectMenu
{
    Q_OBJECT

public:
    using DialogSelectMenu::DialogSelectMenu;
};
