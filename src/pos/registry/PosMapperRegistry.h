#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperAccountingTransaction;
class DataMapperAcquisition;
class DataMapperAgent;
class DataMapperBank;
class DataMapperCashFlow;
class DataMapperCreditNote;
class DataMapperDataPerusahaan;
class DataMapperEmployee;
class DataMapperGroupedItem;
class DataMapperImages;
class DataMapperInvoice;
class DataMapperItem;
class DataMapperItemHistory;
class DataMapperJenisItem;
class DataMapperMember;
class DataMapperPayment;
class DataMapperPrinterType;
class DataMapperPurchaseOrder;
class DataMapperSatuan;
class DataMapperStockTake;
class DataMapperStokAwal;
class DataMapperSupplier;

/** The mappers of any shop, in the order in which their tables are created. */
class PosMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static PosMapperRegistry* instance();

    [[nodiscard]] DataMapperSatuan* satuanMapper() const;
    [[nodiscard]] DataMapperImages* imagesMapper() const;
    [[nodiscard]] DataMapperBank* bankMapper() const;
    [[nodiscard]] DataMapperEmployee* employeeMapper() const;
    [[nodiscard]] DataMapperJenisItem* jenisItemMapper() const;
    [[nodiscard]] DataMapperMember* memberMapper() const;
    [[nodiscard]] DataMapperDataPerusahaan* dataPerusahaanMapper() const;
    [[nodiscard]] DataMapperPrinterType* printerTypeMapper() const;
    [[nodiscard]] DataMapperSupplier* supplierMapper() const;
    [[nodiscard]] DataMapperAgent* agentMapper() const;
    [[nodiscard]] DataMapperItem* itemMapper() const;
    [[nodiscard]] DataMapperGroupedItem* groupedItemMapper() const;
    [[nodiscard]] DataMapperStockTake* stockTakeMapper() const;
    [[nodiscard]] DataMapperItemHistory* itemHistoryMapper() const;
    [[nodiscard]] DataMapperStokAwal* stokAwalMapper() const;
    [[nodiscard]] DataMapperPurchaseOrder* purchaseOrderMapper() const;
    [[nodiscard]] DataMapperAcquisition* acquisitionMapper() const;
    [[nodiscard]] DataMapperCreditNote* creditNoteMapper() const;
    [[nodiscard]] DataMapperPayment* paymentMapper() const;
    [[nodiscard]] DataMapperCashFlow* cashFlowMapper() const;
    [[nodiscard]] DataMapperAccountingTransaction* accountingTransactionMapper() const;

    [[nodiscard]] DataMapperInvoice* invoiceMapper() const;

private:
    explicit PosMapperRegistry(QObject* parent);
};
