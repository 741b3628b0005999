#pragma once

#include "app/context/EntityUserGroup.h"

/**
 * A person who logs in. In a record from a form, Password is the plain text; in a record read from the database, the
 * digest.
 */
class EntityUser : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, FirstName, QString(""))
    KOR_PROPERTY(QString, LastName, QString(""))
    KOR_PROPERTY(QString, UserName, QString(""))
    KOR_PROPERTY(QString, Password, QString(""))
    KOR_REFERENCE(EntityUserGroup, Group)
    KOR_PROPERTY(QString, Currency, QString(""))

public:
    using KorEntity::KorEntity;
};
