#pragma once

#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/invoice/Invoice.h"

/** The amount that a member's payment pays of one invoice, and the amount left after it. */
class EntityPiutangDetail : public EntityPartPayment
{
    Q_OBJECT
    KOR_PROPERTY(int, PiutangId, KorNoValue)
    KOR_REFERENCE(Invoice, Invoice)

public:
    using EntityPartPayment::EntityPartPayment;

    [[nodiscard]] int documentId() const override { return m_Invoice->getId(); }
    [[nodiscard]] QString documentNo() const override { return m_Invoice->getInvoiceNo(); }
};
