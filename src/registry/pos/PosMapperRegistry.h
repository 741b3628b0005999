#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperPrinterType;

/** The mappers of any shop, in the order in which their tables are created. */
class PosMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static PosMapperRegistry* instance();

    [[nodiscard]] DataMapperPrinterType* printerTypeMapper() const;

private:
    explicit PosMapperRegistry(QObject* parent);
};
