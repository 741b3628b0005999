#pragma once

#include "kor/entity/KorEntity.h"

#include <QList>
#include <QPair>

/** Remembers the ids of records before a save, to restore them if the save is rolled back. */
class IdKeeper
{
public:
    explicit IdKeeper(const QList<KorEntity*>& entities)
    {
        for (KorEntity* entity : entities)
            m_ids.append({entity, entity->getId()});
    }
    void restore() const
    {
        for (const auto& id : m_ids)
            id.first->setId(id.second);
    }

private:
    QList<QPair<KorEntity*, int>> m_ids;
};
