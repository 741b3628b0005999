#pragma once

#include "app/context/EntityUser.h"

/** A saved state of a record as JSON text with its SHA-1. Version is the record's version at that time. */
class EntityHistory : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, ClassName, QString(""))
    KOR_PROPERTY(int, ItemId, KorNoValue)
    KOR_PROPERTY(QDateTime, SavedDate, QDateTime())
    KOR_PROPERTY(QString, DataJSON, QString(""))
    KOR_PROPERTY(QString, SHA1HashHex, QString(""))
    KOR_REFERENCE(EntityUser, User)
    KOR_PROPERTY(int, Operation, KorNoValue)

public:
    using KorEntity::KorEntity;
};
