#include "registry/zavel/ZavelMapperRegistry.h"

#include "app/context/AppContext.h"
#include "masterdata/meja/DataMapperMeja.h"
#include "registry/app/AppMapperRegistry.h"
#include "registry/pos/PosMapperRegistry.h"

ZavelMapperRegistry* ZavelMapperRegistry::instance()
{
    static QPointer<ZavelMapperRegistry> registry;
    if (!registry)
        registry = new ZavelMapperRegistry(AppContext::instance());
    return registry;
}

ZavelMapperRegistry::ZavelMapperRegistry(QObject* parent) : KorMapperRegistry(parent)
{
    AppMapperRegistry::instance();
    PosMapperRegistry::instance();
    make<DataMapperMeja>();
}

DataMapperMeja* ZavelMapperRegistry::mejaMapper() const { return typed<DataMapperMeja>("meja"); }
