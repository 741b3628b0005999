#pragma once

#include "zavel/order/OrderLinesModel.h"

/** The lines of an order on a table. */
class TableModelMakanDitempatDetail final : public OrderLinesModel
{
    Q_OBJECT

public:
    using OrderLinesModel::OrderLinesModel;
};
