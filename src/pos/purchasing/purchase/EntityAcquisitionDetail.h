#pragma once

#include "pos/purchasing/document/EntityPurchasingLine.h"

/** One item of a purchase: what came, and what the order had asked for. */
class EntityAcquisitionDetail : public EntityPurchasingLine
{
    Q_OBJECT
    KOR_PROPERTY(int, AcquisitionId, KorNoValue)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, QtyOrdered, 0)
    /** The order's line, KorNoValue for an item that nobody had ordered. */
    KOR_PROPERTY(int, PurchaseOrderDetailId, KorNoValue)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(TotalPrice)
    PURCHASING_LINE(Qty, PriceEach, TotalPrice)

public:
    using EntityPurchasingLine::EntityPurchasingLine;
};
