#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/account/AccountType.h"

/** A ledger account. Despite the name, only some of them are banks. */
class EntityBank : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_PROPERTY(int, AccountType, CashAccount)
    KOR_PROPERTY(bool, Active, true)

public:
    using KorEntity::KorEntity;
};
