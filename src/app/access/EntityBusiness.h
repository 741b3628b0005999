#pragma once

#include "kor/entity/KorEntity.h"

/** A service whose operations need rights, by its name. */
class EntityBusiness : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Name, QString(""))

public:
    using KorEntity::KorEntity;
};
