#include "pos/printing/printer/DataMapperPrinterType.h"

#include "kor/entity/KorMetaDataMap.h"

DataMapperPrinterType::DataMapperPrinterType(QObject* parent) : AppDataMapper(parent)
{
    setName("Printer Type");
    metaData()->setTableName("printer_type");
    column("printer_type", "varchar(20) not null UNIQUE", "PrinterType");
    column("cash_drawer_cmd", "varchar(50) not null", "CashDrawerCmd");
    column("cut_papper_cmd", "varchar(50) not null", "CutPapperCmd");
}

KorEntity* DataMapperPrinterType::createEntity() { return new EntityPrinterType(entityParent()); }

EntityPrinterType* DataMapperPrinterType::findByType(const QString& name)
{
    return static_cast<EntityPrinterType*>(findByColumn("printer_type", name));
}

QList<EntityPrinterType*> DataMapperPrinterType::getAll()
{
    return castAll<EntityPrinterType>(findMany(KorConditions().ascending("printer_type.printer_type")));
}
