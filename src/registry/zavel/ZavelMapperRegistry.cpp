#include "registry/zavel/ZavelMapperRegistry.h"

#include "app/context/AppContext.h"
#include "masterdata/meja/DataMapperMeja.h"
#include "registry/app/AppMapperRegistry.h"
#include "registry/pos/PosMapperRegistry.h"
#include "sales/order/DataMapperMakanDitempat.h"
#include "sales/payment/DataMapperInvoiceMakanDitempat.h"

ZavelMapperRegistry* ZavelMapperRegistry::instance()
{
    static QPointer<ZavelMapperRegistry> registry;
    if (!registry)
        registry = new ZavelMapperRegistry(AppContext::instance());
    return registry;
}

ZavelMapperRegistry::ZavelMapperRegistry(QObject* parent) : KorMapperRegistry(parent)
{
    AppMapperRegistry::instance();
    const PosMapperRegistry* pos = PosMapperRegistry::instance();
    make<DataMapperMeja>();
    make<DataMapperMakanDitempat>(pos->memberMapper(), mejaMapper(),
                                  ItemPartners{pos->itemMapper(), pos->jenisItemMapper(), pos->satuanMapper()});
    make<DataMapperInvoiceMakanDitempat>(pos->invoiceMapper(), makanDitempatMapper());
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
