#pragma once

#include "zavel/order/OrderLinesTab.h"
#include "zavel/takeaway/DialogSelectBawaPulangInventory.h"
#include "zavel/takeaway/DialogSelectBawaPulangMenu.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"
#include "zavel/takeaway/TableModelBawaPulangDetail.h"

/** The menu lines in the form of an order to take away. */
class TabBawaPulangDetail final : public OrderLinesOf<EntityBawaPulangDetail, TableModelBawaPulangDetail,
                                                      DialogSelectBawaPulangMenu, DialogSelectBawaPulangInventory>
{
    Q_OBJECT

public:
    explicit TabBawaPulangDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
