#include "app/registry/AppBusinessRegistry.h"

#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AppContext.h"
#include "app/numbers/BusinessKey.h"
#include "app/registry/AppFamilies.h"
#include "app/registry/AppMapperRegistry.h"

AppBusinessRegistry* AppBusinessRegistry::instance()
{
    AppMapperRegistry::instance();
    static QPointer<AppBusinessRegistry> registry;
    if (!registry)
        registry = new AppBusinessRegistry(AppContext::instance());
    return registry;
}

AppBusinessRegistry::AppBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(appFamilies(),
                          {"Configuration", "Permission", "User Access", "User", "KeyTable", "User Group"},
                          AppContext::instance()->logger(), parent)
{}

BusinessConfiguration* AppBusinessRegistry::configuration() const
{
    return typed<BusinessConfiguration>("Configuration");
}
BusinessPermission* AppBusinessRegistry::permission() const { return typed<BusinessPermission>("Permission"); }
BusinessUserAccess* AppBusinessRegistry::userAccess() const { return typed<BusinessUserAccess>("User Access"); }
BusinessUser* AppBusinessRegistry::user() const { return typed<BusinessUser>("User"); }
BusinessKey* AppBusinessRegistry::keyTable() const { return typed<BusinessKey>("KeyTable"); }
BusinessUserGroup* AppBusinessRegistry::userGroup() const { return typed<BusinessUserGroup>("User Group"); }
