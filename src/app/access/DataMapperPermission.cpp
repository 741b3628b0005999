#include "app/access/DataMapperPermission.h"

#include "app/access/DataMapperBusiness.h"
#include "app/access/DataMapperPermissionMigration11.h"
#include "app/access/EntityPermission.h"
#include "kor/entity/KorMetaDataMap.h"

DataMapperPermission::DataMapperPermission(QObject* parent, DataMapperBusiness* businesses) : AppDataMapper(parent)
{
    setName("permission");
    metaData()->setTableName("permissions");
    column("permission_name", "varchar(200) not null UNIQUE", "PermissionName");
    column("permission_key", "integer not null", "PermissionKey");
    reference("business_id", "integer not null", "Business", businesses, "inner");
}

KorEntity* DataMapperPermission::createEntity() { return new EntityPermission(entityParent()); }

QList<KorMigration*> DataMapperPermission::migrations() { return {new DataMapperPermissionMigration11}; }

QStringList DataMapperPermission::indexStatements() const { return {index("business_id", "(business_id)")}; }

EntityPermission* DataMapperPermission::findByKey(int key, int businessId)
{
    return static_cast<EntityPermission*>(
        findOne(KorConditions().equals("permission_key", key).equals("business_id", businessId)));
}

QList<KorEntity*> DataMapperPermission::findByBusiness(int businessId)
{
    return findMany(KorConditions().equals("business_id", businessId).ascending("permission_name"));
}
