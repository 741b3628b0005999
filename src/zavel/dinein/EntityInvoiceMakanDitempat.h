#pragma once

#include "pos/invoice/EntityInvoiceLink.h"
#include "zavel/dinein/EntityMakanDitempat.h"

/** Links an invoice to an order on a table; an order whose bill is split has several. */
class EntityInvoiceMakanDitempat final : public EntityInvoiceLink
{
    Q_OBJECT
    KOR_REFERENCE(EntityMakanDitempat, MakanDitempat)
    KOR_REFERENCE(EntityEmployee, Employee)
    KOR_REFERENCE(EntityAgent, Agent)
    KOR_PROPERTY(QDate, DueDate, QDate())

public:
    using EntityInvoiceLink::EntityInvoiceLink;
};
