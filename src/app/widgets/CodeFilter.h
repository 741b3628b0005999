#pragma once

#include "app/context/EntityPool.h"
#include "kor/entity/KorEntity.h"

#include <QLineEdit>

/**
 * What a list is narrowed to by the code in a filter box: the id of the record, KorNoValue for an empty box, and 0,
 * which no record has, for a code that nobody has.
 */
template <class Service>
[[nodiscard]] int idOfCode(const QLineEdit* box, Service* records)
{
    if (box->text().isEmpty())
        return KorNoValue;
    EntityPool read;
    const EntityPoolScope scope(read);
    const KorEntity* found = records->findByCode(box->text());
    records->clearErrors();
    return found ? found->getId() : 0;
}
