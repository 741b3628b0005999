#pragma once

#include "pos/invoice/EntityInvoiceLink.h"
#include "zavel/takeaway/EntityBawaPulang.h"

/** Links an invoice to a take-away order; each order has one. */
class EntityInvoiceBawaPulang final : public EntityInvoiceLink
{
    Q_OBJECT
    KOR_REFERENCE(EntityBawaPulang, BawaPulang)
    KOR_REFERENCE(EntityMember, Member)
    KOR_PROPERTY(QString, Pemesan, QString())

public:
    using EntityInvoiceLink::EntityInvoiceLink;
};
