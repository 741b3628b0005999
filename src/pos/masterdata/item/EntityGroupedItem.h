#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

/** One component of a grouped item: which item, and how many of it. */
class EntityGroupedItem : public KorEntity
{
    Q_OBJECT
    // Written by a name of its own: setParent() is how an object changes its owner.
    Q_PROPERTY(EntityItem* Parent READ getParent WRITE setParentItem)
    KOR_REFERENCE(EntityItem, Original)
    KOR_PROPERTY(int, Jumlah, 0)

public:
    using KorEntity::KorEntity;

    /** The grouped item. Read from the database it has its id and nothing else. */
    [[nodiscard]] EntityItem* getParent() const { return m_parentItem; }
    void setParentItem(EntityItem* parent) { m_parentItem = parent; }

private:
    EntityItem* m_parentItem = nullptr;
};
