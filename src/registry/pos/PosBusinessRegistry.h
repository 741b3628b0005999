#pragma once

#include "kor/business/KorBusinessRegistry.h"

class BusinessAgent;
class BusinessBank;
class BusinessEmployee;
class BusinessJenisItem;
class BusinessMember;
class BusinessPrinterType;
class BusinessSatuan;
class BusinessSupplier;

/** The services of any shop. */
class PosBusinessRegistry final : public KorBusinessRegistry
{
    Q_OBJECT

public:
    static PosBusinessRegistry* instance();

    [[nodiscard]] BusinessBank* bank() const;
    [[nodiscard]] BusinessAgent* agent() const;
    [[nodiscard]] BusinessSupplier* supplier() const;
    [[nodiscard]] BusinessPrinterType* printerType() const;
    [[nodiscard]] BusinessJenisItem* jenisItem() const;
    [[nodiscard]] BusinessMember* member() const;
    [[nodiscard]] BusinessSatuan* satuan() const;
    [[nodiscard]] BusinessEmployee* employee() const;

private:
    explicit PosBusinessRegistry(QObject* parent);
};
