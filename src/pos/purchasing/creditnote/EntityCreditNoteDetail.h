#pragma once

#include "pos/purchasing/document/EntityPurchasingLine.h"

/** One item of a credit note: the purchased and the returned quantity. */
class EntityCreditNoteDetail : public EntityPurchasingLine
{
    Q_OBJECT
    KOR_PROPERTY(int, CreditNoteId, KorNoValue)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, QtyReturned, 0)
    /** The id of the purchase line; KorNoValue for an item without a purchase. */
    KOR_PROPERTY(int, AcquisitionDetailId, KorNoValue)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(TotalPrice)
    PURCHASING_LINE(QtyReturned, PriceEach, TotalPrice)

public:
    using EntityPurchasingLine::EntityPurchasingLine;
};
