#pragma once

#include "zavel/order/OrderLinesModel.h"

/** The lines of an order to take away. */
class TableModelBawaPulangDetail final : public OrderLinesModel
{
    Q_OBJECT

public:
    using OrderLinesModel::OrderLinesModel;
};
