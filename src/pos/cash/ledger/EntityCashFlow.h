#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"

#include <QDate>

/**
 * A manual entry in the ledger. Also used for a row of the ledger, which additionally has account name and operator.
 */
class EntityCashFlow : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(QString, Notes, QString())
    KOR_PROPERTY(QString, TransNo, QString(""))
    KOR_PROPERTY(QString, TransType, QString(""))
    KOR_PROPERTY(QString, AccountCode, QString(""))
    MONEY_PROPERTY(Debet)
    MONEY_PROPERTY(Credit)
    KOR_PROPERTY(QString, AccountName, QString())
    KOR_PROPERTY(QString, Operator, QString())

public:
    using KorEntity::KorEntity;
};
