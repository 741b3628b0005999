#include "app/registry/AppBusinessRegistry.h"

#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AppContext.h"
#include "app/numbers/BusinessKey.h"
#include "app/registry/AppMapperRegistry.h"

AppBusinessRegistry* AppBusinessRegistry::instance()
{
    static QPointer<AppBusinessRegistry> registry;
    if (!registry)
        registry = new AppBusinessRegistry(AppContext::instance());
    return registry;
}

AppBusinessRegistry::AppBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(AppContext::instance()->logger(), parent)
{
    const AppMapperRegistry* mappers = AppMapperRegistry::instance();
    make<BusinessConfiguration>(mappers->appConfigMapper());
    make<BusinessPermission>(mappers->permissionMapper(), mappers->businessMapper());
    auto* access = make<BusinessUserAccess>(mappers->accessMapper());
    make<BusinessUser>(mappers->userMapper(), access);
    make<BusinessKey>(mappers->keyMapper());
    make<BusinessUserGroup>(mappers->userGroupMapper());
}

BusinessConfiguration* AppBusinessRegistry::configuration() const
{
    return typed<BusinessConfiguration>("Configuration");
}
BusinessPermission* AppBusinessRegistry::permission() const { return typed<BusinessPermission>("Permission"); }
BusinessUserAccess* AppBusinessRegistry::userAccess() const { return typed<BusinessUserAccess>("User Access"); }
BusinessUser* AppBusinessRegistry::user() const { return typed<BusinessUser>("User"); }
BusinessKey* AppBusinessRegistry::keyTable() const { return typed<BusinessKey>("KeyTable"); }
BusinessUserGroup* AppBusinessRegistry::userGroup() const { return typed<BusinessUserGroup>("User Group"); }
