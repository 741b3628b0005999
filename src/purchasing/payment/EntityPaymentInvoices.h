#pragma once

#include "purchasing/acquisition/EntityAcquisition.h"

/** What a payment pays of one purchase, and what is then left of it. */
class EntityPaymentInvoices : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentId, KorNoValue)
    KOR_REFERENCE(EntityAcquisition, Acquisition)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(AmountDue)

public:
    using KorEntity::KorEntity;
};
