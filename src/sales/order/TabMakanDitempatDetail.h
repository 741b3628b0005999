#pragma once

#include "sales/order/DialogSelectInventory.h"
#include "sales/order/DialogSelectMenu.h"
#include "sales/order/EntityMakanDitempatDetail.h"
#include "sales/order/OrderLinesTab.h"
#include "sales/order/TableModelMakanDitempatDetail.h"

/** The menu lines in the form of an order on a table. */
class TabMakanDitempatDetail final : public OrderLinesOf<EntityMakanDitempatDetail, TableModelMakanDitempatDetail,
                                                         DialogSelectMenu, DialogSelectInventory>
{
    Q_OBJECT

public:
    explicit TabMakanDitempatDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
