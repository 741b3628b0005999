#pragma once

#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/dinein/TableModelMakanDitempatDetail.h"
#include "zavel/order/DialogSelectInventory.h"
#include "zavel/order/DialogSelectMenu.h"
#include "zavel/order/OrderLinesTab.h"

/** The menu lines in the form of an order on a table. */
class TabMakanDitempatDetail final : public OrderLinesOf<EntityMakanDitempatDetail, TableModelMakanDitempatDetail,
                                                         DialogSelectMenu, DialogSelectInventory>
{
    Q_OBJECT

public:
    explicit TabMakanDitempatDetail(QWidget* parent = nullptr) : OrderLinesOf(parent) { refresh(); }
};
