#pragma once

#include "masterdata/item/EntityItem.h"

/** One item of a credit note: what the purchase held and what goes back. */
class EntityCreditNoteDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, CreditNoteId, KorNoValue)
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, QtyReturned, 0)
    /** The purchase's line, KorNoValue for an item returned freely. */
    KOR_PROPERTY(int, AcquisitionDetailId, KorNoValue)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(TotalPrice)
    KOR_PROPERTY(double, DiscountPercentage, 0)

public:
    using KorEntity::KorEntity;
};
