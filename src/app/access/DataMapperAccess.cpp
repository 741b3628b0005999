#include "app/access/DataMapperAccess.h"

#include "app/access/DataMapperBusiness.h"
#include "app/access/DataMapperPermission.h"
#include "app/access/DataMapperUserGroup.h"
#include "app/access/EntityAccess.h"
#include "kor/entity/KorMetaDataMap.h"

DataMapperAccess::DataMapperAccess(QObject* parent, DataMapperUserGroup* groups, DataMapperPermission* permissions,
                                   DataMapperBusiness* businesses)
    : AppDataMapper(parent)
{
    setName("access");
    metaData()->setTableName("access");
    reference("group_id", "integer not null", "Group", groups, "inner");
    reference("permission_id", "integer not null", "Permission", permissions, "inner");
    column("grant_type", "integer not null", "Grant");
    addJoin("Business", businesses, "inner", "permissions.business_id", "id");
}

KorEntity* DataMapperAccess::createEntity() { return new EntityAccess(entityParent()); }

QStringList DataMapperAccess::indexStatements() const
{
    return {index("group_id", "(group_id, permission_id)"), index("permission_id", "(permission_id)")};
}

EntityAccess* DataMapperAccess::findAccess(int groupId, int permissionId)
{
    return static_cast<EntityAccess*>(
        findOne(KorConditions().equals("group_id", groupId).equals("permission_id", permissionId)));
}

QList<KorEntity*> DataMapperAccess::findByGroup(int groupId)
{
    return findMany(KorConditions().equals("group_id", groupId));
}
