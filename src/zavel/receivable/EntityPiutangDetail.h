#pragma once

#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/invoice/Invoice.h"

/** What a member's payment pays of one invoice, and what is then left of it. */
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
