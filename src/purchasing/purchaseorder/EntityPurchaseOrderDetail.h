#pragma once

#include "masterdata/item/EntityItem.h"

/** One item of a purchase order: how many were ordered and at which price. */
class EntityPurchaseOrderDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, PurchaseOrderId, KorNoValue)
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Jumlah, 0)
    MONEY_PROPERTY(Price)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(TotalPrice)
    KOR_PROPERTY(double, DiscountPercentage, 0)

public:
    using KorEntity::KorEntity;
};
