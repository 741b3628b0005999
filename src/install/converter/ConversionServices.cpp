#include "install/converter/ConversionServices.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/numbers/DataMapperKey.h"
#include "inventory/stock/DataMapperItemHistory.h"
#include "inventory/stock/DataMapperStokAwal.h"
#include "masterdata/agent/BusinessAgent.h"
#include "masterdata/agent/DataMapperAgent.h"
#include "masterdata/bank/BusinessBank.h"
#include "masterdata/bank/DataMapperBank.h"
#include "masterdata/company/BusinessDataPerusahaan.h"
#include "masterdata/company/DataMapperDataPerusahaan.h"
#include "masterdata/company/DataMapperImages.h"
#include "masterdata/employee/BusinessEmployee.h"
#include "masterdata/employee/DataMapperEmployee.h"
#include "masterdata/item/BusinessItem.h"
#include "masterdata/item/DataMapperGroupedItem.h"
#include "masterdata/item/DataMapperItem.h"
#include "masterdata/jenisitem/BusinessJenisItem.h"
#include "masterdata/jenisitem/DataMapperJenisItem.h"
#include "masterdata/member/BusinessMember.h"
#include "masterdata/member/DataMapperMember.h"
#include "masterdata/satuan/BusinessSatuan.h"
#include "masterdata/satuan/DataMapperSatuan.h"
#include "masterdata/supplier/BusinessSupplier.h"
#include "masterdata/supplier/DataMapperSupplier.h"
#include "purchasing/acquisition/BusinessPurchases.h"
#include "purchasing/acquisition/DataMapperAcquisition.h"
#include "purchasing/payment/BusinessPayment.h"
#include "purchasing/payment/DataMapperPayment.h"
#include "purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "purchasing/purchaseorder/DataMapperPurchaseOrder.h"

ConversionServices makeConversionServices(QObject* owner)
{
    auto* keys = new DataMapperKey(owner);
    auto* accounts = new DataMapperBank(owner);
    auto* types = new DataMapperJenisItem(owner);
    auto* units = new DataMapperSatuan(owner);
    auto* suppliers = new DataMapperSupplier(owner, accounts);
    auto* items = new DataMapperItem(owner, types, units, accounts);
    const ItemPartners partners{items, types, units};
    auto* orders = new DataMapperPurchaseOrder(owner, keys, suppliers, accounts, partners);
    auto* purchases = new DataMapperAcquisition(owner, keys, suppliers, accounts, orders, partners);
    auto* payments = new DataMapperPayment(owner, keys, suppliers, accounts, purchases, partners);
    purchases->keepGivenNumbers();
    payments->keepGivenNumbers();

    ConversionServices services;
    services.configuration = new BusinessConfiguration(owner, new DataMapperAppConfig(owner));
    services.company =
        new BusinessDataPerusahaan(owner, new DataMapperDataPerusahaan(owner), new DataMapperImages(owner));
    services.accounts = new BusinessBank(owner, accounts);
    services.itemTypes = new BusinessJenisItem(owner, types);
    services.units = new BusinessSatuan(owner, units);
    services.suppliers = new BusinessSupplier(owner, suppliers);
    services.members = new BusinessMember(owner, new DataMapperMember(owner));
    services.agents = new BusinessAgent(owner, new DataMapperAgent(owner, accounts));
    services.employees = new BusinessEmployee(owner, new DataMapperEmployee(owner));
    services.items = new BusinessItem(owner, items, new DataMapperGroupedItem(owner, items),
                                      new DataMapperStokAwal(owner, items, units));
    services.orders = new BusinessPurchaseOrder(owner, orders, purchases);
    services.purchases = new BusinessPurchases(owner, purchases, new DataMapperItemHistory(owner, items, types, units));
    services.payments = new BusinessPayment(owner, payments, services.purchases);
    return services;
}
