#include "pos/registry/PosMapperRegistry.h"

#include "app/context/AppContext.h"
#include "app/registry/AppMapperRegistry.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/cash/transfer/DataMapperAccountingTransaction.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/DataMapperStockTake.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/company/DataMapperDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperImages.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/item/DataMapperGroupedItem.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/DataMapperStokAwal.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"
#include "pos/printing/printer/DataMapperPrinterType.h"
#include "pos/purchasing/creditnote/DataMapperCreditNote.h"
#include "pos/purchasing/payment/DataMapperPayment.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"
#include "pos/registry/PosFamilies.h"

PosMapperRegistry* PosMapperRegistry::instance()
{
    AppMapperRegistry::instance();
    static QPointer<PosMapperRegistry> registry;
    if (!registry)
        registry = new PosMapperRegistry(AppContext::instance());
    return registry;
}

PosMapperRegistry::PosMapperRegistry(QObject* parent) : KorMapperRegistry(posFamilies(), parent) {}

DataMapperSatuan* PosMapperRegistry::satuanMapper() const { return typed<DataMapperSatuan>("satuan"); }

DataMapperImages* PosMapperRegistry::imagesMapper() const { return typed<DataMapperImages>("images"); }

DataMapperBank* PosMapperRegistry::bankMapper() const { return typed<DataMapperBank>("bank"); }

DataMapperEmployee* PosMapperRegistry::employeeMapper() const { return typed<DataMapperEmployee>("employee"); }

DataMapperJenisItem* PosMapperRegistry::jenisItemMapper() const { return typed<DataMapperJenisItem>("jenis item"); }

DataMapperMember* PosMapperRegistry::memberMapper() const { return typed<DataMapperMember>("member"); }

DataMapperDataPerusahaan* PosMapperRegistry::dataPerusahaanMapper() const
{
    return typed<DataMapperDataPerusahaan>("data perusahaan");
}

DataMapperPrinterType* PosMapperRegistry::printerTypeMapper() const
{
    return typed<DataMapperPrinterType>("Printer Type");
}

DataMapperSupplier* PosMapperRegistry::supplierMapper() const { return typed<DataMapperSupplier>("supplier"); }

DataMapperAgent* PosMapperRegistry::agentMapper() const { return typed<DataMapperAgent>("agent"); }

DataMapperItem* PosMapperRegistry::itemMapper() const { return typed<DataMapperItem>("item"); }

DataMapperGroupedItem* PosMapperRegistry::groupedItemMapper() const
{
    return typed<DataMapperGroupedItem>("grouped item");
}

DataMapperStockTake* PosMapperRegistry::stockTakeMapper() const { return typed<DataMapperStockTake>("stock take"); }

DataMapperItemHistory* PosMapperRegistry::itemHistoryMapper() const
{
    return typed<DataMapperItemHistory>("item history");
}

DataMapperStokAwal* PosMapperRegistry::stokAwalMapper() const { return typed<DataMapperStokAwal>("stok awal"); }

DataMapperPurchaseOrder* PosMapperRegistry::purchaseOrderMapper() const
{
    return typed<DataMapperPurchaseOrder>("purchase order");
}

DataMapperAcquisition* PosMapperRegistry::acquisitionMapper() const
{
    return typed<DataMapperAcquisition>("acquisition");
}

DataMapperCreditNote* PosMapperRegistry::creditNoteMapper() const { return typed<DataMapperCreditNote>("credit note"); }

DataMapperPayment* PosMapperRegistry::paymentMapper() const { return typed<DataMapperPayment>("payment"); }

DataMapperCashFlow* PosMapperRegistry::cashFlowMapper() const { return typed<DataMapperCashFlow>("cash flow"); }

DataMapperAccountingTransaction* PosMapperRegistry::accountingTransactionMapper() const
{
    return typed<DataMapperAccountingTransaction>("Accounting Transaction");
}
DataMapperInvoice* PosMapperRegistry::invoiceMapper() const { return typed<DataMapperInvoice>("invoice"); }
