#pragma once

#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"

/** What a payment pays of one purchase, and what is then left of it. */
class EntityPaymentInvoices : public EntityPartPayment
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentId, KorNoValue)
    KOR_REFERENCE(EntityAcquisition, Acquisition)

public:
    using EntityPartPayment::EntityPartPayment;

    [[nodiscard]] int documentId() const override { return m_Acquisition->getId(); }
    [[nodiscard]] QString documentNo() const override { return m_Acquisition->getNo(); }
};
