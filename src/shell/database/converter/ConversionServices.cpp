#include "shell/database/converter/ConversionServices.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/numbers/DataMapperKey.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperImages.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
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
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/DataMapperPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/DataMapperAcquisition.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DataMapperPurchaseOrder.h"

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
