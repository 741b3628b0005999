#pragma once

#include "app/access/EntityPermission.h"
#include "app/context/EntityUserGroup.h"

/** The right of a group to one operation. */
class EntityAccess : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityUserGroup, Group)
    KOR_REFERENCE(EntityPermission, Permission)
    KOR_PROPERTY(int, Grant, None)

public:
    /** Owner: only on records that the user created, and for operations without a record. Undecided: not chosen yet. */
    enum GrantType { None, Owner, All, Undecided };

    using KorEntity::KorEntity;
};
