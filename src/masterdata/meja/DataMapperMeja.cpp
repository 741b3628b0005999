#include "masterdata/meja/DataMapperMeja.h"

#include "kor/entity/KorMetaDataMap.h"
#include "masterdata/meja/DataMapperMejaMigration11.h"
#include "masterdata/meja/EntityMeja.h"

DataMapperMeja::DataMapperMeja(QObject* parent) : AppMasterMapper(parent)
{
    setName("meja");
    metaData()->setTableName("meja");
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(50) not null", "Nama");
}

KorEntity* DataMapperMeja::createEntity() { return new EntityMeja(entityParent()); }

QList<KorMigration*> DataMapperMeja::migrations() { return {new DataMapperMejaMigration11(widenCodeStatement())}; }
