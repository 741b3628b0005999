#include "registry/pos/PosMapperRegistry.h"

#include "app/context/AppContext.h"
#include "printing/printer/DataMapperPrinterType.h"
#include "registry/app/AppMapperRegistry.h"

PosMapperRegistry* PosMapperRegistry::instance()
{
    static QPointer<PosMapperRegistry> registry;
    if (!registry)
        registry = new PosMapperRegistry(AppContext::instance());
    return registry;
}

PosMapperRegistry::PosMapperRegistry(QObject* parent) : KorMapperRegistry(parent)
{
    AppMapperRegistry::instance();
    make<DataMapperPrinterType>();
}

DataMapperPrinterType* PosMapperRegistry::printerTypeMapper() const
{
    return typed<DataMapperPrinterType>("Printer Type");
}
