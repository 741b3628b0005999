#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/agent/EntityAgent.h"
#include "zavel/commission/EntityKomisiAgenDetail.h"

#include <QDate>

/** The payment of an agent's commissions on a group of invoices. */
class EntityKomisiAgen : public KorEntity, public AppDocumentLines<EntityKomisiAgenDetail>
{
    Q_OBJECT
    KOR_PROPERTY(QString, No, QString(""))
    KOR_REFERENCE(EntityAgent, Agent)
    KOR_PROPERTY(QDate, PaymentDate, QDate())
    MONEY_PROPERTY(GrandTotal)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(NetDue)
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRef, QString())
    KOR_PROPERTY(QString, Note, QString())

public:
    using KorEntity::KorEntity;
};
