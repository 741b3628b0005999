#pragma once

#include "zavel/order/EntityOrderDetail.h"

/** One line of a sale over the counter while it is being entered; only the invoice's line is stored. */
class EntityFastFoodDetail final : public EntityOrderDetail
{
    Q_OBJECT
    KOR_PROPERTY(int, FastFoodId, KorNoValue)

public:
    using EntityOrderDetail::EntityOrderDetail;

    [[nodiscard]] int getOrderId() const override { return m_FastFoodId; }
    void setOrderId(int id) override { m_FastFoodId = id; }
    [[nodiscard]] EntityOrderDetail* createSibling() const override { return new EntityFastFoodDetail; }
};
