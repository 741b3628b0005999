#include "registry/pos/PosMapperRegistry.h"

#include "app/context/AppContext.h"
#include "masterdata/agent/DataMapperAgent.h"
#include "masterdata/bank/DataMapperBank.h"
#include "masterdata/employee/DataMapperEmployee.h"
#include "masterdata/jenisitem/DataMapperJenisItem.h"
#include "masterdata/member/DataMapperMember.h"
#include "masterdata/satuan/DataMapperSatuan.h"
#include "masterdata/supplier/DataMapperSupplier.h"
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
    make<DataMapperSatuan>();
    make<DataMapperBank>();
    make<DataMapperEmployee>();
    make<DataMapperJenisItem>();
    make<DataMapperMember>();
    make<DataMapperPrinterType>();
    make<DataMapperSupplier>(bankMapper());
    make<DataMapperAgent>(bankMapper());
}

DataMapperSatuan* PosMapperRegistry::satuanMapper() const { return typed<DataMapperSatuan>("satuan"); }

DataMapperBank* PosMapperRegistry::bankMapper() const { return typed<DataMapperBank>("bank"); }

DataMapperEmployee* PosMapperRegistry::employeeMapper() const { return typed<DataMapperEmployee>("employee"); }

DataMapperJenisItem* PosMapperRegistry::jenisItemMapper() const { return typed<DataMapperJenisItem>("jenis item"); }

DataMapperMember* PosMapperRegistry::memberMapper() const { return typed<DataMapperMember>("member"); }

DataMapperPrinterType* PosMapperRegistry::printerTypeMapper() const
{
    return typed<DataMapperPrinterType>("Printer Type");
}

DataMapperSupplier* PosMapperRegistry::supplierMapper() const { return typed<DataMapperSupplier>("supplier"); }

DataMapperAgent* PosMapperRegistry::agentMapper() const { return typed<DataMapperAgent>("agent"); }
