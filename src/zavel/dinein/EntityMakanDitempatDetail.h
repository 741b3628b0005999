#pragma once

#include "zavel/order/EntityOrderDetail.h"

/** One menu line of an order on a table. */
class EntityMakanDitempatDetail final : public EntityOrderDetail
{
    Q_OBJECT
    KOR_PROPERTY(int, MakanDitempatId, KorNoValue)

public:
    using EntityOrderDetail::EntityOrderDetail;

    [[nodiscard]] int getOrderId() const override { return m_MakanDitempatId; }
    void setOrderId(int id) override { m_MakanDitempatId = id; }
    [[nodiscard]] EntityOrderDetail* createSibling() const override { return new EntityMakanDitempatDetail; }
};
