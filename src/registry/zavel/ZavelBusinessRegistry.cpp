#include "registry/zavel/ZavelBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "masterdata/meja/BusinessMeja.h"
#include "registry/app/AppBusinessRegistry.h"
#include "registry/pos/PosBusinessRegistry.h"
#include "registry/pos/PosMapperRegistry.h"
#include "registry/zavel/ZavelMapperRegistry.h"
#include "sales/commission/DataMapperAllAgentCommision.h"
#include "sales/commission/DataMapperKomisiAgen.h"
#include "sales/fastfood/DataMapperInvoiceFastFood.h"
#include "sales/list/DataMapperPenjualanInfo.h"
#include "sales/receivable/DataMapperPiutang.h"
#include "sales/service/BusinessPenjualan.h"
#include "sales/takeaway/DataMapperBawaPulang.h"
#include "sales/takeaway/DataMapperInvoiceBawaPulang.h"

ZavelBusinessRegistry* ZavelBusinessRegistry::instance()
{
    static QPointer<ZavelBusinessRegistry> registry;
    if (!registry)
        registry = new ZavelBusinessRegistry(AppContext::instance());
    return registry;
}

ZavelBusinessRegistry::ZavelBusinessRegistry(QObject* parent)
    : KorBusinessRegistry(AppContext::instance()->logger(), parent)
{
    const ZavelMapperRegistry* mappers = ZavelMapperRegistry::instance();
    AppBusinessRegistry::instance();
    PosBusinessRegistry::instance();
    make<BusinessMeja>(mappers->mejaMapper());
    BusinessPenjualan::Mappers sales;
    sales.dineInvoices = mappers->invoiceMakanDitempatMapper();
    sales.dineOrders = mappers->makanDitempatMapper();
    sales.fastFoodInvoices = mappers->invoiceFastFoodMapper();
    sales.takeAwayOrders = mappers->bawaPulangMapper();
    sales.takeAwayInvoices = mappers->invoiceBawaPulangMapper();
    sales.salesList = mappers->penjualanInfoMapper();
    sales.receivables = mappers->piutangMapper();
    sales.commissions = mappers->komisiAgenMapper();
    sales.agentSales = mappers->allAgentCommisionMapper();
    sales.invoices = PosMapperRegistry::instance()->invoiceMapper();
    make<BusinessPenjualan>(sales);
}
