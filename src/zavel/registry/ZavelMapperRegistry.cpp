#include "zavel/registry/ZavelMapperRegistry.h"

#include "app/context/AppContext.h"
#include "pos/registry/PosMapperRegistry.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/registry/ZavelFamilies.h"
#include "zavel/tables/DataMapperMeja.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"

ZavelMapperRegistry* ZavelMapperRegistry::instance()
{
    PosMapperRegistry::instance();
    static QPointer<ZavelMapperRegistry> registry;
    if (!registry)
        registry = new ZavelMapperRegistry(AppContext::instance());
    return registry;
}

ZavelMapperRegistry::ZavelMapperRegistry(QObject* parent) : KorMapperRegistry(zavelFamilies(), parent) {}

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
