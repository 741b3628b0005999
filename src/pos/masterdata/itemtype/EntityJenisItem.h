#pragma once

#include "kor/entity/KorEntity.h"

/** A type of items; groups the menu and the stock. */
class EntityJenisItem : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))

public:
    using KorEntity::KorEntity;
};
