#include "zavel/tables/DataMapperMeja.h"

#include "kor/entity/KorMetaDataMap.h"
#include "zavel/tables/DataMapperMejaMigration11.h"
#include "zavel/tables/EntityMeja.h"

DataMapperMeja::DataMapperMeja(QObject* parent) : AppMasterMapper(parent)
{
    setName("meja");
    metaData()->setTableName("meja");
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(50) not null", "Nama");
}

KorEntity* DataMapperMeja::createEntity() { return new EntityMeja(entityParent()); }

QList<KorMigration*> DataMapperMeja::migrations() { return {new DataMapperMejaMigration11(widenCodeStatement())}; }
