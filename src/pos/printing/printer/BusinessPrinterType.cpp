#include "pos/printing/printer/BusinessPrinterType.h"

#include "pos/printing/printer/DataMapperPrinterType.h"

BusinessPrinterType::BusinessPrinterType(QObject* parent, DataMapperPrinterType* mapper)
    : KorBusinessLogic("Printer Type", mapper, parent), m_printerTypes(mapper)
{}

QList<KorPermission> BusinessPrinterType::getPermissions() const
{
    return {{INSERT_PRINTER_TYPE, tr("Add Printer Type")},
            {UPDATE_PRINTER_TYPE, tr("Update Printer Type")},
            {DELETE_PRINTER_TYPE, tr("Delete Printer Type")}};
}

QList<EntityPrinterType*> BusinessPrinterType::getAll()
{
    return read(m_printerTypes->getAll(), m_printerTypes, "getAll");
}

EntityPrinterType* BusinessPrinterType::findByType(const QString& name)
{
    return read(m_printerTypes->findByType(name), m_printerTypes, "findByType");
}
