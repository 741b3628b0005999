#pragma once

#include "sales/invoice/Invoice.h"

/** What a member's payment pays of one invoice, and what is then left of it. */
class EntityPiutangDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, PiutangId, KorNoValue)
    KOR_REFERENCE(Invoice, Invoice)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(AmountDue)

public:
    using KorEntity::KorEntity;
};
