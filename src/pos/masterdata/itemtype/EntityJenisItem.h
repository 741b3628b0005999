#pragma once

#include "kor/entity/KorEntity.h"

/** A type of items: the groups in which the menu and the stock are sorted. */
class EntityJenisItem : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))

public:
    using KorEntity::KorEntity;
};
