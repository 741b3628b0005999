#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/company/EntityImage.h"

/** The restaurant's own data, which the bills print. */
class EntityDataPerusahaan : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, NamaPerusahaan, QString(""))
    KOR_PROPERTY(QString, Alamat, QString(""))
    KOR_PROPERTY(QString, Telp, QString(""))
    KOR_PROPERTY(QString, Fax, QString())
    KOR_PROPERTY(QString, NPWP, QString())
    KOR_PROPERTY(QString, TanggalPKP, QString())
    /** A row of its own in the table of pictures. */
    KOR_REFERENCE(EntityImage, Logo)

public:
    using KorEntity::KorEntity;
};
