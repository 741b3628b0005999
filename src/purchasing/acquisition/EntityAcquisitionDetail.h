#pragma once

#include "masterdata/item/EntityItem.h"

/** One item of a purchase: what came, and what the order had asked for. */
class EntityAcquisitionDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, AcquisitionId, KorNoValue)
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, QtyOrdered, 0)
    /** The order's line, KorNoValue for an item that nobody had ordered. */
    KOR_PROPERTY(int, PurchaseOrderDetailId, KorNoValue)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(TotalPrice)
    KOR_PROPERTY(double, DiscountPercentage, 0)

public:
    using KorEntity::KorEntity;
};
