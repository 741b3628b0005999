#include "pos/registry/PosBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "app/registry/AppBusinessRegistry.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/transfer/BusinessAccountingTransaction.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/BusinessStokAwal.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/registry/PosFamilies.h"
#include "pos/registry/PosMapperRegistry.h"

PosBusinessRegistry* PosBusinessRegistry::instance()
{
    AppBusinessRegistry::instance();
    PosMapperRegistry::instance();
    static QPointer<PosBusinessRegistry> registry;
    if (!registry)
        registry = new PosBusinessRegistry(AppContext::instance());
    return registry;
}

PosBusinessRegistry::PosBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(posFamilies(),
                          {"Accounting Transaction",
                           "Bank",
                           "Agent",
                           "Supplier",
                           "Printer Type",
                           "Printer Config",
                           "Company Profile",
                           "Purchases",
                           "Credit Note",
                           "Grouped Item",
                           "Inventory",
                           "Item",
                           "Item Type",
                           "Member",
                           "Purchase Order",
                           "Payment",
                           "Unit",
                           "Beginning Balance",
                           "Employee",
                           "Journal Transaction"},
                          AppContext::instance()->logger(), parent)
{}

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
