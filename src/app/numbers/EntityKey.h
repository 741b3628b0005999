#pragma once

#include "kor/entity/KorEntity.h"

/** A running number: the counter of one kind of document, and the format of its numbers. */
class EntityKey : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, KeyName, QString(""))
    KOR_PROPERTY(int, NextId, 1)
    /** Not stored and not used. */
    KOR_PROPERTY(int, CurrentId, 1)
    KOR_PROPERTY(int, IncrementBy, 1)
    /** A date pattern for the text before the counter. */
    KOR_PROPERTY(QString, Format, QString(""))
    /** Not stored: the number that was drawn. */
    KOR_PROPERTY(QString, GeneratedNo, QString(""))
    KOR_PROPERTY(QString, Description, QString(""))
    /** The least number of digits of the counter. */
    KOR_PROPERTY(int, NoZero, 4)

public:
    using KorEntity::KorEntity;
};
