#include "app/access/DataMapperUserGroup.h"

#include "app/context/EntityUserGroup.h"
#include "kor/entity/KorMetaDataMap.h"

DataMapperUserGroup::DataMapperUserGroup(QObject* parent) : AppDataMapper(parent)
{
    setName("user group");
    metaData()->setTableName("user_group");
    column("name", "varchar(200) not null UNIQUE", "GroupName");
}

KorEntity* DataMapperUserGroup::createEntity() { return new EntityUserGroup(entityParent()); }

EntityUserGroup* DataMapperUserGroup::findByGroupName(const QString& name)
{
    return static_cast<EntityUserGroup*>(findOne(KorConditions().equals("lower(name)", name.toLower())));
}

QList<KorEntity*> DataMapperUserGroup::findAll(const QString& filter)
{
    return findMany(KorConditions().contains("lower(name)", filter).ascending("name"));
}
