#pragma once

#include "kor/entity/KorEntity.h"

/** The sales of one item. Only read, never stored. The amount is as in the database: whole currency units. */
class EntitySoldItem : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString())
    KOR_PROPERTY(QString, Nama, QString())
    /** The item type's code. */
    KOR_PROPERTY(QString, ItemType, QString())
    KOR_PROPERTY(qint64, TotalQty, 0)
    KOR_PROPERTY(qint64, TotalPrice, 0)

public:
    using KorEntity::KorEntity;
};
