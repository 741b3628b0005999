#pragma once

#include "kor/entity/KorEntity.h"

/** A group of users; rights are given to groups. */
class EntityUserGroup : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, GroupName, QString(""))

public:
    using KorEntity::KorEntity;
};
