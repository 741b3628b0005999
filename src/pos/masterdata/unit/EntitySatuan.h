#pragma once

#include "kor/entity/KorEntity.h"

/** A unit for counting or weighing items. */
class EntitySatuan : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_PROPERTY(QString, Kode, QString(""))

public:
    using KorEntity::KorEntity;
};
