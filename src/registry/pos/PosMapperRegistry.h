#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperAgent;
class DataMapperBank;
class DataMapperEmployee;
class DataMapperJenisItem;
class DataMapperMember;
class DataMapperPrinterType;
class DataMapperSatuan;
class DataMapperSupplier;

/** The mappers of any shop, in the order in which their tables are created. */
class PosMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static PosMapperRegistry* instance();

    [[nodiscard]] DataMapperSatuan* satuanMapper() const;
    [[nodiscard]] DataMapperBank* bankMapper() const;
    [[nodiscard]] DataMapperEmployee* employeeMapper() const;
    [[nodiscard]] DataMapperJenisItem* jenisItemMapper() const;
    [[nodiscard]] DataMapperMember* memberMapper() const;
    [[nodiscard]] DataMapperPrinterType* printerTypeMapper() const;
    [[nodiscard]] DataMapperSupplier* supplierMapper() const;
    [[nodiscard]] DataMapperAgent* agentMapper() const;

private:
    explicit PosMapperRegistry(QObject* parent);
};
