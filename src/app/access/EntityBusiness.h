#pragma once

#include "kor/entity/KorEntity.h"

/** The name of a service whose operations need rights. */
class EntityBusiness : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Name, QString(""))

public:
    using KorEntity::KorEntity;
};
