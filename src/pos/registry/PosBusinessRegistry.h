#pragma once

#include "kor/business/KorBusinessRegistry.h"

class BusinessAccountingTransaction;
class BusinessAgent;
class BusinessBank;
class BusinessCashFlow;
class BusinessCreditNote;
class BusinessDataPerusahaan;
class BusinessEmployee;
class BusinessGroupedItem;
class BusinessInventory;
class BusinessItem;
class BusinessJenisItem;
class BusinessMember;
class BusinessPayment;
class BusinessPrinterConfig;
class BusinessPrinterType;
class BusinessPurchaseOrder;
class BusinessPurchases;
class BusinessSatuan;
class BusinessStokAwal;
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
    [[nodiscard]] BusinessPrinterConfig* printerConfig() const;
    [[nodiscard]] BusinessDataPerusahaan* dataPerusahaan() const;
    [[nodiscard]] BusinessGroupedItem* groupedItem() const;
    [[nodiscard]] BusinessInventory* inventory() const;
    [[nodiscard]] BusinessItem* item() const;
    [[nodiscard]] BusinessJenisItem* jenisItem() const;
    [[nodiscard]] BusinessMember* member() const;
    [[nodiscard]] BusinessSatuan* satuan() const;
    [[nodiscard]] BusinessStokAwal* stokAwal() const;
    [[nodiscard]] BusinessEmployee* employee() const;
    [[nodiscard]] BusinessAccountingTransaction* accountingTransaction() const;
    [[nodiscard]] BusinessPurchases* purchases() const;
    [[nodiscard]] BusinessCreditNote* creditNote() const;
    [[nodiscard]] BusinessPurchaseOrder* purchaseOrder() const;
    [[nodiscard]] BusinessPayment* payment() const;
    [[nodiscard]] BusinessCashFlow* cashFlow() const;

private:
    explicit PosBusinessRegistry(QObject* parent);
};
