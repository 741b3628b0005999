#pragma once

#include "kor/entity/KorEntity.h"

/** A running number: the counter from which one kind of document draws, and the form of its numbers. */
class EntityKey : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, KeyName, QString(""))
    KOR_PROPERTY(int, NextId, 1)
    /** Not stored and not used. */
    KOR_PROPERTY(int, CurrentId, 1)
    KOR_PROPERTY(int, IncrementBy, 1)
    /** A date pattern that stands before the counter. */
    KOR_PROPERTY(QString, Format, QString(""))
    /** Not stored: the number that a draw gave. */
    KOR_PROPERTY(QString, GeneratedNo, QString(""))
    KOR_PROPERTY(QString, Description, QString(""))
    /** How many digits the counter has at least. */
    KOR_PROPERTY(int, NoZero, 4)

public:
    using KorEntity::KorEntity;
};
