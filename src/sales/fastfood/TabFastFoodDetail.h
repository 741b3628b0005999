#pragma once

#include "sales/fastfood/DialogSelectFastFoodInventory.h"
#include "sales/fastfood/DialogSelectFastFoodMenu.h"
#include "sales/fastfood/EntityFastFoodDetail.h"
#include "sales/fastfood/TableModelFastFoodDetail.h"
#include "sales/order/OrderLinesTab.h"

/** The lines in the form of a sale over the counter. */
class TabFastFoodDetail final : public OrderLinesOf<EntityFastFoodDetail, TableModelFastFoodDetail,
                                                    DialogSelectFastFoodMenu, DialogSelectFastFoodInventory>
{
    Q_OBJECT

public:
    explicit TabFastFoodDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
