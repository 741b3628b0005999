#include "registry/zavel/ZavelMapperRegistry.h"

#include "app/context/AppContext.h"
#include "masterdata/meja/DataMapperMeja.h"
#include "registry/app/AppMapperRegistry.h"
#include "registry/pos/PosMapperRegistry.h"
#include "sales/commission/DataMapperAllAgentCommision.h"
#include "sales/commission/DataMapperKomisiAgen.h"
#include "sales/fastfood/DataMapperInvoiceFastFood.h"
#include "sales/list/DataMapperPenjualanInfo.h"
#include "sales/order/DataMapperMakanDitempat.h"
#include "sales/payment/DataMapperInvoiceMakanDitempat.h"
#include "sales/receivable/DataMapperPiutang.h"
#include "sales/takeaway/DataMapperBawaPulang.h"
#include "sales/takeaway/DataMapperInvoiceBawaPulang.h"

ZavelMapperRegistry* ZavelMapperRegistry::instance()
{
    static QPointer<ZavelMapperRegistry> registry;
    if (!registry)
        registry = new ZavelMapperRegistry(AppContext::instance());
    return registry;
}

ZavelMapperRegistry::ZavelMapperRegistry(QObject* parent) : KorMapperRegistry(parent)
{
    const AppMapperRegistry* app = AppMapperRegistry::instance();
    const PosMapperRegistry* pos = PosMapperRegistry::instance();
    make<DataMapperMeja>();
    DataMapperInvoice* invoices = pos->invoiceMapper();
    const ItemPartners lines{pos->itemMapper(), pos->jenisItemMapper(), pos->satuanMapper()};
    make<DataMapperMakanDitempat>(pos->memberMapper(), mejaMapper(), lines);
    make<DataMapperInvoiceMakanDitempat>(invoices, makanDitempatMapper());
    make<DataMapperInvoiceFastFood>(invoices);
    make<DataMapperBawaPulang>(pos->memberMapper(), lines);
    make<DataMapperInvoiceBawaPulang>(invoices, bawaPulangMapper());
    make<DataMapperPenjualanInfo>(DataMapperPenjualanInfo::Partners{
        invoices, invoiceMakanDitempatMapper(), invoiceFastFoodMapper(), invoiceBawaPulangMapper(),
        makanDitempatMapper(), app->userMapper(), pos->memberMapper(), pos->employeeMapper()});
    make<DataMapperPiutang>(app->keyMapper(), pos->memberMapper(), pos->bankMapper(), invoices, pos->employeeMapper(),
                            pos->agentMapper());
    make<DataMapperKomisiAgen>(app->keyMapper(), pos->agentMapper(), pos->bankMapper(), invoices);
    make<DataMapperAllAgentCommision>(invoices, pos->agentMapper());
}

DataMapperMeja* ZavelMapperRegistry::mejaMapper() const { return typed<DataMapperMeja>("meja"); }

DataMapperMakanDitempat* ZavelMapperRegistry::makanDitempatMapper() const
{
    return typed<DataMapperMakanDitempat>("makan ditempat");
}

DataMapperInvoiceMakanDitempat* ZavelMapperRegistry::invoiceMakanDitempatMapper() const
{
    return typed<DataMapperInvoiceMakanDitempat>("invoice makan ditempat");
}

DataMapperInvoiceFastFood* ZavelMapperRegistry::invoiceFastFoodMapper() const
{
    return typed<DataMapperInvoiceFastFood>("invoice fastfood");
}

DataMapperBawaPulang* ZavelMapperRegistry::bawaPulangMapper() const
{
    return typed<DataMapperBawaPulang>("bawa pulang");
}

DataMapperInvoiceBawaPulang* ZavelMapperRegistry::invoiceBawaPulangMapper() const
{
    return typed<DataMapperInvoiceBawaPulang>("invoice bawapulang");
}

DataMapperPenjualanInfo* ZavelMapperRegistry::penjualanInfoMapper() const
{
    return typed<DataMapperPenjualanInfo>("penjualan info");
}

DataMapperPiutang* ZavelMapperRegistry::piutangMapper() const { return typed<DataMapperPiutang>("piutang"); }

DataMapperKomisiAgen* ZavelMapperRegistry::komisiAgenMapper() const
{
    return typed<DataMapperKomisiAgen>("komisi agen");
}

DataMapperAllAgentCommision* ZavelMapperRegistry::allAgentCommisionMapper() const
{
    return typed<DataMapperAllAgentCommision>("all agent commision");
}
