#pragma once

#include "pos/invoice/EntityInvoiceLink.h"

/** Ties an invoice to its sale over the counter, which leaves no other trace. */
class EntityInvoiceFastFood final : public EntityInvoiceLink
{
    Q_OBJECT
    KOR_REFERENCE(EntityEmployee, Employee)
    KOR_REFERENCE(EntityAgent, Agent)
    KOR_REFERENCE(EntityMember, Member)
    KOR_PROPERTY(QString, Pemesan, QString())

public:
    using EntityInvoiceLink::EntityInvoiceLink;
};
