#pragma once

#include "kor/entity/KorEntity.h"

/** What suppliers, members, agents and employees share: a code, a name and how to reach them. */
class EntityContact : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_PROPERTY(QString, Alamat, QString(""))
    KOR_PROPERTY(QString, Telp, QString(""))
    KOR_PROPERTY(QString, Email, QString(""))

public:
    using KorEntity::KorEntity;
};
