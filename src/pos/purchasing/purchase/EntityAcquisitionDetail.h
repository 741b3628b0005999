#pragma once

#include "pos/purchasing/document/EntityPurchasingLine.h"

/** One item of a purchase: the received and the ordered quantity. */
class EntityAcquisitionDetail : public EntityPurchasingLine
{
    Q_OBJECT
    KOR_PROPERTY(int, AcquisitionId, KorNoValue)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, QtyOrdered, 0)
    /** The id of the order line; KorNoValue for an item without an order. */
    KOR_PROPERTY(int, PurchaseOrderDetailId, KorNoValue)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(TotalPrice)
    PURCHASING_LINE(Qty, PriceEach, TotalPrice)

public:
    using EntityPurchasingLine::EntityPurchasingLine;
};
