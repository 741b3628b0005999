#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

/** One component of a grouped item: the item and its quantity. */
class EntityGroupedItem : public KorEntity
{
    Q_OBJECT
    // The setter has another name, because QObject::setParent() changes the owner.
    Q_PROPERTY(EntityItem* Parent READ getParent WRITE setParentItem)
    KOR_REFERENCE(EntityItem, Original)
    KOR_PROPERTY(int, Jumlah, 0)

public:
    using KorEntity::KorEntity;

    /** The grouped item. After reading from the database only its id is set. */
    [[nodiscard]] EntityItem* getParent() const { return m_parentItem; }
    void setParentItem(EntityItem* parent) { m_parentItem = parent; }

private:
    EntityItem* m_parentItem = nullptr;
};
