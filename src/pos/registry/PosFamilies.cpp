#include "pos/registry/PosFamilies.h"

#include "app/access/DataMapperUser.h"
#include "app/access/DataMapperUserGroup.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/numbers/DataMapperKey.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/cash/transfer/BusinessAccountingTransaction.h"
#include "pos/cash/transfer/DataMapperAccountingTransaction.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/BusinessStokAwal.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/DataMapperStockTake.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperImages.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/DataMapperGroupedItem.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/DataMapperStokAwal.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "pos/printing/printer/DataMapperPrinterType.h"
#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/creditnote/DataMapperCreditNote.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/DataMapperPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"

template <>
struct KorPart<DataMapperInvoice::Partners> : KorParts<DataMapperInvoice::Partners, DataMapperEmployee, DataMapperAgent,
                                                       DataMapperMember, DataMapperBank, DataMapperKey>
{};

QList<KorFamily> posFamilies()
{
    return {
        table<DataMapperSatuan>().service<BusinessSatuan>(),
        table<DataMapperImages>(),
        table<DataMapperBank>().service<BusinessBank>(),
        table<DataMapperEmployee>().service<BusinessEmployee>(),
        table<DataMapperJenisItem>().service<BusinessJenisItem>(),
        table<DataMapperMember>().service<BusinessMember>(),
        table<DataMapperDataPerusahaan>().service<BusinessDataPerusahaan, DataMapperImages>(),
        table<DataMapperPrinterType>().service<BusinessPrinterType>(),
        serviceAlone<BusinessPrinterConfig, BusinessConfiguration>(),
        table<DataMapperSupplier, DataMapperBank>().service<BusinessSupplier>(),
        table<DataMapperAgent, DataMapperBank>().service<BusinessAgent>(),
        table<DataMapperItem, DataMapperJenisItem, DataMapperSatuan, DataMapperBank>()
            .service<BusinessItem, DataMapperGroupedItem, DataMapperStokAwal>(),
        table<DataMapperPurchaseOrder, DataMapperKey, DataMapperSupplier, DataMapperBank, ItemPartners>()
            .service<BusinessPurchaseOrder, DataMapperAcquisition>(),
        table<DataMapperAcquisition, DataMapperKey, DataMapperSupplier, DataMapperBank, DataMapperPurchaseOrder,
              ItemPartners>()
            .service<BusinessPurchases, DataMapperItemHistory>(),
        table<DataMapperCreditNote, DataMapperKey, DataMapperSupplier, DataMapperBank, ItemPartners>()
            .service<BusinessCreditNote, DataMapperItemHistory, BusinessPurchases>(),
        table<DataMapperGroupedItem, DataMapperItem>().service<BusinessGroupedItem>(),
        table<DataMapperInvoice, DataMapperInvoice::Partners, ItemPartners>(),
        table<DataMapperStockTake, DataMapperItem, DataMapperJenisItem, DataMapperSatuan, DataMapperBank>()
            .service<BusinessInventory, DataMapperStokAwal, DataMapperItemHistory>(),
        table<DataMapperItemHistory, DataMapperItem, DataMapperJenisItem, DataMapperSatuan>(),
        table<DataMapperStokAwal, DataMapperItem, DataMapperSatuan>().service<BusinessStokAwal>(),
        table<DataMapperPayment, DataMapperKey, DataMapperSupplier, DataMapperBank, DataMapperAcquisition,
              ItemPartners>()
            .service<BusinessPayment, BusinessPurchases>(),
        table<DataMapperCashFlow, DataMapperKey>().service<BusinessCashFlow>(),
        table<DataMapperAccountingTransaction, DataMapperKey, DataMapperBank, DataMapperUser, DataMapperUserGroup>()
            .service<BusinessAccountingTransaction>(),
    };
}
