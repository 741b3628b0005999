#include "registry/app/AppBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "registry/app/AppMapperRegistry.h"

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
    AppMapperRegistry::instance();
}
