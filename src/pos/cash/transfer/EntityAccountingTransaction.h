#pragma once

#include "app/context/EntityUser.h"
#include "app/money/Money.h"
#include "pos/masterdata/account/EntityBank.h"

#include <QDate>

/** Money moved from one account to another. */
class EntityAccountingTransaction : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, TransNo, QString(""))
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(QString, Notes, QString())
    KOR_REFERENCE(EntityBank, FromAccount)
    KOR_REFERENCE(EntityBank, ToAccount)
    MONEY_PROPERTY(Amount)
    /** The user who entered it; read with the row, not written. */
    KOR_REFERENCE(EntityUser, User)

public:
    using KorEntity::KorEntity;
};
