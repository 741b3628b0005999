#pragma once

#include "app/access/EntityPermission.h"
#include "app/context/EntityUserGroup.h"

/** What a group may do with one permission. */
class EntityAccess : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityUserGroup, Group)
    KOR_REFERENCE(EntityPermission, Permission)
    KOR_PROPERTY(int, Grant, None)

public:
    /** Owner: on records that the user created, and wherever no record is in question. Undecided: not chosen yet. */
    enum GrantType { None, Owner, All, Undecided };

    using KorEntity::KorEntity;
};
