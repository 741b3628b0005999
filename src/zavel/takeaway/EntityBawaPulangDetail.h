#pragma once

#include "zavel/order/EntityOrderDetail.h"

/** One menu line of an order to take away. */
class EntityBawaPulangDetail final : public EntityOrderDetail
{
    Q_OBJECT
    KOR_PROPERTY(int, BawaPulangId, KorNoValue)

public:
    using EntityOrderDetail::EntityOrderDetail;

    [[nodiscard]] int getOrderId() const override { return m_BawaPulangId; }
    void setOrderId(int id) override { m_BawaPulangId = id; }
    [[nodiscard]] EntityOrderDetail* createSibling() const override { return new EntityBawaPulangDetail; }
};
