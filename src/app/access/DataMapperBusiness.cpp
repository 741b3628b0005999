#include "app/access/DataMapperBusiness.h"

#include "app/access/DataMapperBusinessMigration11.h"
#include "app/access/EntityBusiness.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"

DataMapperBusiness::DataMapperBusiness(QObject* parent) : AppDataMapper(parent)
{
    setName("business");
    metaData()->setTableName("business");
    column("name", "varchar(200) not null UNIQUE", "Name");
}

KorEntity* DataMapperBusiness::createEntity() { return new EntityBusiness(entityParent()); }

QList<KorMigration*> DataMapperBusiness::migrations() { return {new DataMapperBusinessMigration11}; }

EntityBusiness* DataMapperBusiness::findByName(const QString& name)
{
    return static_cast<EntityBusiness*>(findOne(KorConditions().equals("name", name)));
}

QList<KorEntity*> DataMapperBusiness::findAll()
{
    KorPaging paging;
    paging.addSort("name", "asc");
    return find(&paging);
}
