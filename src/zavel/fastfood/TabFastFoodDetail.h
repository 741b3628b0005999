#pragma once

#include "zavel/fastfood/DialogSelectFastFoodInventory.h"
#include "zavel/fastfood/DialogSelectFastFoodMenu.h"
#include "zavel/fastfood/EntityFastFoodDetail.h"
#include "zavel/fastfood/TableModelFastFoodDetail.h"
#include "zavel/order/OrderLinesTab.h"

/** The lines in the form of a sale over the counter. */
class TabFastFoodDetail final : public OrderLinesOf<EntityFastFoodDetail, TableModelFastFoodDetail,
                                                    DialogSelectFastFoodMenu, DialogSelectFastFoodInventory>
{
    Q_OBJECT

public:
    explicit TabFastFoodDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
