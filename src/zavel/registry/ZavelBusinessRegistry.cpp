#include "zavel/registry/ZavelBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "zavel/registry/ZavelFamilies.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/slips/ZavelReportFactory.h"

ZavelBusinessRegistry* ZavelBusinessRegistry::instance()
{
    PosBusinessRegistry::instance();
    ZavelMapperRegistry::instance();
    static QPointer<ZavelBusinessRegistry> registry;
    if (!registry)
        registry = new ZavelBusinessRegistry(AppContext::instance());
    return registry;
}

ZavelBusinessRegistry::ZavelBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(zavelFamilies(), {"Table", "Sales"}, AppContext::instance()->logger(), parent)
{
    // Creates the implementation of SlipRequests for the screens of sales.
    ZavelReportFactory::instance();
}
