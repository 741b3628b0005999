#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/masterdata/agent/EntityAgent.h"
#include "zavel/commission/EntityKomisiAgenDetail.h"

/** The payment of an agent's commissions on a group of invoices. */
class EntityKomisiAgen : public EntitySettlement, public AppDocumentLines<EntityKomisiAgenDetail>
{
    Q_OBJECT
    KOR_REFERENCE(EntityAgent, Agent)
    KOR_PROPERTY(QDate, PaymentDate, QDate())
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(NetDue)

public:
    using EntitySettlement::EntitySettlement;
};
