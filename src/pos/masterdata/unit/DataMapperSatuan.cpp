#include "pos/masterdata/unit/DataMapperSatuan.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/unit/DataMapperSatuanMigration11.h"
#include "pos/masterdata/unit/EntitySatuan.h"

DataMapperSatuan::DataMapperSatuan(QObject* parent) : AppMasterMapper(parent)
{
    setName("satuan");
    metaData()->setTableName("satuan");
    column("nama", "varchar(200) not null UNIQUE", "Nama");
    column("kode", "varchar(20) not null", "Kode");
}

KorEntity* DataMapperSatuan::createEntity() { return new EntitySatuan(entityParent()); }

QList<KorMigration*> DataMapperSatuan::migrations()
{
    return {new DataMapperSatuanMigration11({widenCodeStatement()})};
}
