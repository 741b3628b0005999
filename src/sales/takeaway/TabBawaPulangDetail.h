#pragma once

#include "sales/order/OrderLinesTab.h"
#include "sales/takeaway/DialogSelectBawaPulangInventory.h"
#include "sales/takeaway/DialogSelectBawaPulangMenu.h"
#include "sales/takeaway/EntityBawaPulangDetail.h"
#include "sales/takeaway/TableModelBawaPulangDetail.h"

/** The menu lines in the form of an order to take away. */
class TabBawaPulangDetail final : public OrderLinesOf<EntityBawaPulangDetail, TableModelBawaPulangDetail,
                                                      DialogSelectBawaPulangMenu, DialogSelectBawaPulangInventory>
{
    Q_OBJECT

public:
    explicit TabBawaPulangDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
