#include "pos/masterdata/company/DataMapperDataPerusahaan.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"

DataMapperDataPerusahaan::DataMapperDataPerusahaan(QObject* parent) : AppDataMapper(parent)
{
    setName("data perusahaan");
    metaData()->setTableName("data_perusahaan");
    column("nama_perusahaan", "varchar(200) not null", "NamaPerusahaan");
    column("alamat", "text not null", "Alamat");
    column("phone", "varchar(20) not null", "Telp");
    column("fax", "varchar(20) null", "Fax");
    column("npwp", "varchar(20)  null", "NPWP");
    column("tanggal_pkp", "varchar(20)  null", "TanggalPKP");
}

KorEntity* DataMapperDataPerusahaan::createEntity() { return new EntityDataPerusahaan(entityParent()); }

EntityDataPerusahaan* DataMapperDataPerusahaan::findFirst()
{
    return static_cast<EntityDataPerusahaan*>(findOne(KorConditions().ascending("data_perusahaan.id")));
}
