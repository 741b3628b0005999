#pragma once

#include "pos/purchasing/document/EntityPurchasingLine.h"

/** One item of a purchase order: the ordered quantity and the price. */
class EntityPurchaseOrderDetail : public EntityPurchasingLine
{
    Q_OBJECT
    KOR_PROPERTY(int, PurchaseOrderId, KorNoValue)
    KOR_PROPERTY(int, Jumlah, 0)
    MONEY_PROPERTY(Price)
    MONEY_PROPERTY(TotalPrice)
    PURCHASING_LINE(Jumlah, Price, TotalPrice)

public:
    using EntityPurchasingLine::EntityPurchasingLine;
};
