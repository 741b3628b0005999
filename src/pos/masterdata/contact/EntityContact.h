#pragma once

#include "kor/entity/KorEntity.h"

/** Base of suppliers, members, agents and employees: code, name, address and so on. */
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
