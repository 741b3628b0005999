#pragma once

#include "app/persistence/AppDataMapper.h"
#include "pos/printing/printer/EntityPrinterType.h"

/** The printer models, in the table "printer_type". */
class DataMapperPrinterType final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperPrinterType(QObject* parent);

    KorEntity* createEntity() override;

    [[nodiscard]] EntityPrinterType* findByType(const QString& name);
    /** Sorted by name. */
    [[nodiscard]] QList<EntityPrinterType*> getAll();
};
