#pragma once

#include "kor/entity/KorEntity.h"

/** A table of the restaurant. */
class EntityMeja : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))

public:
    using KorEntity::KorEntity;
};
