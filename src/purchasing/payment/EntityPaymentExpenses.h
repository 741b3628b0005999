#pragma once

#include "masterdata/item/EntityItem.h"

/** Something paid for without a purchase; it moves no stock. */
class EntityPaymentExpenses : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentId, KorNoValue)
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Qty, 0)
    MONEY_PROPERTY(UnitPrice)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(Amount)

public:
    using KorEntity::KorEntity;
};
