#pragma once

#include "zavel/order/OrderLinesModel.h"

/** The lines of a sale over the counter. */
class TableModelFastFoodDetail final : public OrderLinesModel
{
    Q_OBJECT

public:
    using OrderLinesModel::OrderLinesModel;

protected:
    /** Kitchens do not report on these lines. */
    [[nodiscard]] QString statusText(const EntityOrderDetail&) const override { return tr("None"); }
};
