#include "registry/pos/PosBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "cash/accounting/BusinessAccountingTransaction.h"
#include "cash/cashflow/BusinessCashFlow.h"
#include "inventory/stock/BusinessInventory.h"
#include "inventory/stock/BusinessStokAwal.h"
#include "masterdata/agent/BusinessAgent.h"
#include "masterdata/bank/BusinessBank.h"
#include "masterdata/company/BusinessDataPerusahaan.h"
#include "masterdata/employee/BusinessEmployee.h"
#include "masterdata/item/BusinessGroupedItem.h"
#include "masterdata/item/BusinessItem.h"
#include "masterdata/jenisitem/BusinessJenisItem.h"
#include "masterdata/member/BusinessMember.h"
#include "masterdata/satuan/BusinessSatuan.h"
#include "masterdata/supplier/BusinessSupplier.h"
#include "printing/configuration/BusinessPrinterConfig.h"
#include "printing/printer/BusinessPrinterType.h"
#include "purchasing/acquisition/BusinessPurchases.h"
#include "purchasing/creditnote/BusinessCreditNote.h"
#include "purchasing/payment/BusinessPayment.h"
#include "purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "registry/app/AppBusinessRegistry.h"
#include "registry/pos/PosMapperRegistry.h"

PosBusinessRegistry* PosBusinessRegistry::instance()
{
    static QPointer<PosBusinessRegistry> registry;
    if (!registry)
        registry = new PosBusinessRegistry(AppContext::instance());
    return registry;
}

PosBusinessRegistry::PosBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(AppContext::instance()->logger(), parent)
{
    const PosMapperRegistry* mappers = PosMapperRegistry::instance();
    const AppBusinessRegistry* services = AppBusinessRegistry::instance();
    make<BusinessAccountingTransaction>(mappers->accountingTransactionMapper());
    make<BusinessBank>(mappers->bankMapper());
    make<BusinessAgent>(mappers->agentMapper());
    make<BusinessSupplier>(mappers->supplierMapper());
    make<BusinessPrinterType>(mappers->printerTypeMapper());
    make<BusinessPrinterConfig>(services->configuration());
    make<BusinessDataPerusahaan>(mappers->dataPerusahaanMapper(), mappers->imagesMapper());
    make<BusinessPurchases>(mappers->acquisitionMapper(), mappers->itemHistoryMapper());
    make<BusinessCreditNote>(mappers->creditNoteMapper(), mappers->itemHistoryMapper(), purchases());
    make<BusinessGroupedItem>(mappers->groupedItemMapper());
    make<BusinessInventory>(mappers->stockTakeMapper(), mappers->stokAwalMapper(), mappers->itemHistoryMapper());
    make<BusinessItem>(mappers->itemMapper(), mappers->groupedItemMapper(), mappers->stokAwalMapper());
    make<BusinessJenisItem>(mappers->jenisItemMapper());
    make<BusinessMember>(mappers->memberMapper());
    make<BusinessPurchaseOrder>(mappers->purchaseOrderMapper(), mappers->acquisitionMapper());
    make<BusinessPayment>(mappers->paymentMapper(), purchases());
    make<BusinessSatuan>(mappers->satuanMapper());
    make<BusinessStokAwal>(mappers->stokAwalMapper());
    make<BusinessEmployee>(mappers->employeeMapper());
    make<BusinessCashFlow>(mappers->cashFlowMapper());
}

BusinessBank* PosBusinessRegistry::bank() const { return typed<BusinessBank>("Bank"); }

BusinessAgent* PosBusinessRegistry::agent() const { return typed<BusinessAgent>("Agent"); }

BusinessSupplier* PosBusinessRegistry::supplier() const { return typed<BusinessSupplier>("Supplier"); }

BusinessPrinterType* PosBusinessRegistry::printerType() const { return typed<BusinessPrinterType>("Printer Type"); }

BusinessPrinterConfig* PosBusinessRegistry::printerConfig() const
{
    return typed<BusinessPrinterConfig>("Printer Config");
}

BusinessDataPerusahaan* PosBusinessRegistry::dataPerusahaan() const
{
    return typed<BusinessDataPerusahaan>("Company Profile");
}

BusinessGroupedItem* PosBusinessRegistry::groupedItem() const { return typed<BusinessGroupedItem>("Grouped Item"); }

BusinessInventory* PosBusinessRegistry::inventory() const { return typed<BusinessInventory>("Inventory"); }

BusinessItem* PosBusinessRegistry::item() const { return typed<BusinessItem>("Item"); }

BusinessJenisItem* PosBusinessRegistry::jenisItem() const { return typed<BusinessJenisItem>("Item Type"); }

BusinessMember* PosBusinessRegistry::member() const { return typed<BusinessMember>("Member"); }

BusinessSatuan* PosBusinessRegistry::satuan() const { return typed<BusinessSatuan>("Unit"); }

BusinessStokAwal* PosBusinessRegistry::stokAwal() const { return typed<BusinessStokAwal>("Beginning Balance"); }

BusinessEmployee* PosBusinessRegistry::employee() const { return typed<BusinessEmployee>("Employee"); }

BusinessAccountingTransaction* PosBusinessRegistry::accountingTransaction() const
{
    return typed<BusinessAccountingTransaction>("Accounting Transaction");
}

BusinessPurchases* PosBusinessRegistry::purchases() const { return typed<BusinessPurchases>("Purchases"); }

BusinessCreditNote* PosBusinessRegistry::creditNote() const { return typed<BusinessCreditNote>("Credit Note"); }

BusinessPurchaseOrder* PosBusinessRegistry::purchaseOrder() const
{
    return typed<BusinessPurchaseOrder>("Purchase Order");
}

BusinessPayment* PosBusinessRegistry::payment() const { return typed<BusinessPayment>("Payment"); }

BusinessCashFlow* PosBusinessRegistry::cashFlow() const { return typed<BusinessCashFlow>("Journal Transaction"); }
