#pragma once

#include "pos/invoice/EntityInvoiceLink.h"

/** Marks an invoice as a sale over the counter; such a sale has no order record. */
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
