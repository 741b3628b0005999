#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"

/** The amount that a payment pays for one document, and the rest that is still due. */
class EntityPartPayment : public KorEntity
{
    Q_OBJECT
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(AmountDue)

public:
    using KorEntity::KorEntity;

    [[nodiscard]] virtual int documentId() const = 0;
    [[nodiscard]] virtual QString documentNo() const = 0;
};
