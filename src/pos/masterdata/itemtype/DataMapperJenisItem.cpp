#include "pos/masterdata/itemtype/DataMapperJenisItem.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/itemtype/DataMapperJenisItemMigration11.h"
#include "pos/masterdata/itemtype/EntityJenisItem.h"

DataMapperJenisItem::DataMapperJenisItem(QObject* parent) : AppMasterMapper(parent)
{
    setName("jenis item");
    metaData()->setTableName("jenis_item");
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(200) not null", "Nama");
}

KorEntity* DataMapperJenisItem::createEntity() { return new EntityJenisItem(entityParent()); }

QList<KorMigration*> DataMapperJenisItem::migrations()
{
    return {new DataMapperJenisItemMigration11({widenCodeStatement()})};
}
