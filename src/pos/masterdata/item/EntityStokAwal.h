#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

/** The beginning balance of an item: the quantity and unit cost before any movement. */
class EntityStokAwal : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityItem, Item)
    MONEY_PROPERTY(Harga)
    KOR_PROPERTY(int, Jumlah, 0)
    Q_PROPERTY(QDateTime DateTime READ getDateTime)

public:
    using KorEntity::KorEntity;

    /** The time from which the balance is valid. */
    [[nodiscard]] QDateTime getDateTime() const { return getCreatedTime(); }
};
