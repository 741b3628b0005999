#pragma once

#include "zavel/order/OrderLinesModel.h"

/** The lines of a sale over the counter. */
class TableModelFastFoodDetail final : public OrderLinesModel
{
    Q_OBJECT

public:
    using OrderLinesModel::OrderLinesModel;

protected:
    /** No kitchen reports about them. */
    [[nodiscard]] QString statusText(const EntityOrderDetail&) const override { return tr("None"); }
};
