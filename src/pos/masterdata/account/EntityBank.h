#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/account/AccountType.h"

/** An account of the ledger; despite the name, banks are only some of them. */
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
