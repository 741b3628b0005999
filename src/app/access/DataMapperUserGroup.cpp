#include "app/access/DataMapperUserGroup.h"

#include "app/context/EntityUserGroup.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"

DataMapperUserGroup::DataMapperUserGroup(QObject* parent) : AppDataMapper(parent)
{
    setName("user group");
    metaData()->setTableName("user_group");
    column("name", "varchar(200) not null UNIQUE", "GroupName");
}

KorEntity* DataMapperUserGroup::createEntity() { return new EntityUserGroup(entityParent()); }

EntityUserGroup* DataMapperUserGroup::findByGroupName(const QString& name)
{
    return static_cast<EntityUserGroup*>(findOne(" where lower(name) = :name", {{":name", name.toLower()}}));
}

QList<KorEntity*> DataMapperUserGroup::findAll(const QString& filter)
{
    KorPaging paging;
    paging.addFilter("lower(name) like ", '%' + filter.toLower() + '%');
    paging.addSort("name", "asc");
    return find(&paging);
}
