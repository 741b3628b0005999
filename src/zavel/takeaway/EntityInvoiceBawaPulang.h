#pragma once

#include "pos/invoice/EntityInvoiceLink.h"
#include "zavel/takeaway/EntityBawaPulang.h"

/** Ties an invoice to the order that was taken away; an order has one. */
class EntityInvoiceBawaPulang final : public EntityInvoiceLink
{
    Q_OBJECT
    KOR_REFERENCE(EntityBawaPulang, BawaPulang)
    KOR_REFERENCE(EntityMember, Member)
    KOR_PROPERTY(QString, Pemesan, QString())

public:
    using EntityInvoiceLink::EntityInvoiceLink;
};
