#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"

/** What a payment pays of one document, and what is then left of it. */
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
