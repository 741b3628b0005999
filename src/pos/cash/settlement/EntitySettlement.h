#pragma once

#include "app/money/Money.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/masterdata/account/EntityBank.h"

#include <QDate>

/** A payment between the restaurant and one person for several documents at once. */
class EntitySettlement : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(QString, Note, QString())
    MONEY_PROPERTY(GrandTotal)
    /** The ledger account that pays or receives the money. NoRef is the bank's own number of the payment. */
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRef, QString())

public:
    using KorEntity::KorEntity;
};

/** A settlement that may pay a part of each document. */
class EntityPartSettlement : public EntitySettlement
{
    Q_OBJECT
    KOR_PROPERTY(int, PaymentType, PaymentType::Cash)
    KOR_PROPERTY(QString, CheckNo, QString())
    KOR_PROPERTY(QDate, Date, QDate())

public:
    using EntitySettlement::EntitySettlement;
};
