#pragma once

#include "pos/invoice/Invoice.h"
#include "pos/masterdata/agent/EntityAgent.h"

/** An invoice with an agent, and the commission at the agent's current percent. Only read, never stored. */
class EntityAllKomisiAgen : public KorEntity
{
    Q_OBJECT

public:
    enum CommissionStatus { FULL_PAID = Invoice::FULL_PAID, UNPAID = Invoice::UNPAID };
    Q_ENUM(CommissionStatus)

    KOR_REFERENCE(Invoice, Invoice)
    KOR_REFERENCE(EntityAgent, Agent)
    MONEY_PROPERTY(Commision)
    KOR_PROPERTY(int, Status, UNPAID)

public:
    using KorEntity::KorEntity;
};
