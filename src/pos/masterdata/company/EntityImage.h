#pragma once

#include "kor/entity/KorEntity.h"

#include <QByteArray>

/** A stored picture: PNG data and a name. */
class EntityImage : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, ImageName, QString(""))
    KOR_PROPERTY(QByteArray, ImageData, QByteArray())

public:
    using KorEntity::KorEntity;
};
