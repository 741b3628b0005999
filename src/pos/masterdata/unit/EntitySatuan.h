#pragma once

#include "kor/entity/KorEntity.h"

/** A unit in which items are counted or weighed. */
class EntitySatuan : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_PROPERTY(QString, Kode, QString(""))

public:
    using KorEntity::KorEntity;
};
