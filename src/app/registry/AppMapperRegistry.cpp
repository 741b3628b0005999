#include "app/registry/AppMapperRegistry.h"

#include "app/access/DataMapperAccess.h"
#include "app/access/DataMapperBusiness.h"
#include "app/access/DataMapperPermission.h"
#include "app/access/DataMapperUser.h"
#include "app/access/DataMapperUserGroup.h"
#include "app/configuration/DataMapperAppConfig.h"
#include "app/context/AppContext.h"
#include "app/history/DataMapperHistory.h"
#include "app/numbers/DataMapperKey.h"
#include "app/registry/AppFamilies.h"

AppMapperRegistry* AppMapperRegistry::instance()
{
    static QPointer<AppMapperRegistry> registry;
    if (!registry)
        registry = new AppMapperRegistry(AppContext::instance());
    return registry;
}

AppMapperRegistry::AppMapperRegistry(QObject* parent) : KorMapperRegistry(appFamilies(), parent) {}

DataMapperAppConfig* AppMapperRegistry::appConfigMapper() const { return typed<DataMapperAppConfig>("appconfig"); }
DataMapperHistory* AppMapperRegistry::historyMapper() const { return typed<DataMapperHistory>("history"); }
DataMapperKey* AppMapperRegistry::keyMapper() const { return typed<DataMapperKey>("key"); }
DataMapperUserGroup* AppMapperRegistry::userGroupMapper() const { return typed<DataMapperUserGroup>("user group"); }
DataMapperBusiness* AppMapperRegistry::businessMapper() const { return typed<DataMapperBusiness>("business"); }
DataMapperPermission* AppMapperRegistry::permissionMapper() const { return typed<DataMapperPermission>("permission"); }
DataMapperAccess* AppMapperRegistry::accessMapper() const { return typed<DataMapperAccess>("access"); }
DataMapperUser* AppMapperRegistry::userMapper() const { return typed<DataMapperUser>("user"); }
