#include "registry/pos/PosBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "printing/printer/BusinessPrinterType.h"
#include "registry/app/AppBusinessRegistry.h"
#include "registry/pos/PosMapperRegistry.h"

PosBusinessRegistry* PosBusinessRegistry::instance()
{
    static QPointer<PosBusinessRegistry> registry;
    if (!registry)
        registry = new PosBusinessRegistry(AppContext::instance());
    return registry;
}

PosBusinessRegistry::PosBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(AppContext::instance()->logger(), parent)
{
    const PosMapperRegistry* mappers = PosMapperRegistry::instance();
    AppBusinessRegistry::instance();
    make<BusinessPrinterType>(mappers->printerTypeMapper());
}
