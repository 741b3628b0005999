#pragma once

#include "pos/purchasing/document/EntityPurchasingLine.h"

/** An expense that is paid without a purchase; it does not move stock. */
class EntityPaymentExpenses : public EntityPurchasingLine
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentId, KorNoValue)
    KOR_PROPERTY(int, Qty, 0)
    MONEY_PROPERTY(UnitPrice)
    MONEY_PROPERTY(Amount)
    PURCHASING_LINE(Qty, UnitPrice, Amount)

public:
    using EntityPurchasingLine::EntityPurchasingLine;
};
