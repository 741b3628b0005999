#include "pos/masterdata/account/DataMapperBank.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBankMigration11.h"
#include "pos/masterdata/account/EntityBank.h"

DataMapperBank::DataMapperBank(QObject* parent) : AppMasterMapper(parent)
{
    setName("bank");
    metaData()->setTableName("bank");
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(200) not null", "Nama");
    column("account_type", "integer not null", "AccountType");
    column("active", "boolean not null", "Active");
}

KorEntity* DataMapperBank::createEntity() { return new EntityBank(entityParent()); }

QList<KorMigration*> DataMapperBank::migrations() { return {new DataMapperBankMigration11({widenCodeStatement()})}; }
