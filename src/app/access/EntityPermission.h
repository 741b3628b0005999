#pragma once

#include "app/access/EntityBusiness.h"

/** One operation of a service that needs a right. */
class EntityPermission : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, PermissionName, QString(""))
    KOR_PROPERTY(int, PermissionKey, KorNoValue)
    KOR_REFERENCE(EntityBusiness, Business)

public:
    using KorEntity::KorEntity;
};
