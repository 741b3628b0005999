#pragma once

#include "app/context/EntityUserGroup.h"

/**
 * A person who logs in. Password holds the plain text that a form delivers until it is written, and the stored
 * digest in a record that was read.
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
