#pragma once

#include "kor/entity/KorEntity.h"

#include <QList>
#include <QPair>

/** Ids of records as they were before a save; put back when the rows that gave new ones have been rolled back. */
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
