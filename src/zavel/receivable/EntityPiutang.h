#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/member/EntityMember.h"
#include "zavel/receivable/EntityPiutangDetail.h"

/** A member's later payment for invoices that were left open. */
class EntityPiutang : public KorEntity, public AppDocumentLines<EntityPiutangDetail>
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentType, PaymentType::Cash)
    KOR_REFERENCE(EntityMember, Member)
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(QString, CheckNo, QString())
    KOR_PROPERTY(QString, Note, QString())
    MONEY_PROPERTY(GrandTotal)
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRef, QString())

public:
    using KorEntity::KorEntity;
};
