#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/company/EntityImage.h"

/** Name, address and logo of the restaurant, as printed on bills. */
class EntityDataPerusahaan : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, NamaPerusahaan, QString(""))
    KOR_PROPERTY(QString, Alamat, QString(""))
    KOR_PROPERTY(QString, Telp, QString(""))
    KOR_PROPERTY(QString, Fax, QString())
    KOR_PROPERTY(QString, NPWP, QString())
    KOR_PROPERTY(QString, TanggalPKP, QString())
    /** A row in the table of pictures. */
    KOR_REFERENCE(EntityImage, Logo)

public:
    using KorEntity::KorEntity;
};
