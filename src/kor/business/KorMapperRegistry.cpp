#include "kor/business/KorMapperRegistry.h"

#include "kor/persistence/KorDataMapper.h"

void KorMapperRegistry::add(KorDataMapper* mapper)
{
    m_byName.insert(mapper->name(), mapper);
    m_ordered.append(mapper);
}
