#include "registry/app/AppMapperRegistry.h"

#include "app/context/AppContext.h"

AppMapperRegistry* AppMapperRegistry::instance()
{
    static QPointer<AppMapperRegistry> registry;
    if (!registry)
        registry = new AppMapperRegistry(AppContext::instance());
    return registry;
}

AppMapperRegistry::AppMapperRegistry(QObject* parent) : KorMapperRegistry(parent) {}
