#pragma once

#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"

/** The amount that a payment pays for one purchase, and the rest that is still due. */
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
