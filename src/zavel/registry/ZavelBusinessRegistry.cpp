#include "zavel/registry/ZavelBusinessRegistry.h"

#include "app/context/AppContext.h"
#include "app/registry/AppBusinessRegistry.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "pos/registry/PosMapperRegistry.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/slips/ZavelReportFactory.h"
#include "zavel/tables/BusinessMeja.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"

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
    sales.transactions = {sales.commissions,      sales.receivables, sales.dineInvoices, sales.fastFoodInvoices,
                          sales.takeAwayInvoices, sales.invoices,    sales.dineOrders,   sales.takeAwayOrders};
    make<BusinessPenjualan>(sales.dineInvoices, sales);
    // Who answers what the screens of sales ask for.
    ZavelReportFactory::instance();
}
