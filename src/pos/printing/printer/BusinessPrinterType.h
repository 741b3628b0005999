#pragma once

#include "kor/business/KorBusinessLogic.h"
#include "pos/printing/printer/EntityPrinterType.h"

class DataMapperPrinterType;

/** The service of the printer models. The installer inserts them; forms and slips only read them. */
class BusinessPrinterType final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_PRINTER_TYPE, UPDATE_PRINTER_TYPE, DELETE_PRINTER_TYPE };
    Q_ENUM(PERMISSIONS)

    BusinessPrinterType(QObject* parent, DataMapperPrinterType* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    [[nodiscard]] QList<EntityPrinterType*> getAll();
    /** Null if there is no such model. */
    [[nodiscard]] EntityPrinterType* findByType(const QString& name);

private:
    DataMapperPrinterType* m_printerTypes;
};
