#include "shell/TabFactories.h"

#include "app/access/TabUser.h"
#include "app/access/TabUserAccess.h"
#include "app/access/TabUserGroup.h"
#include "app/numbers/TabKeyTable.h"
#include "cash/accounting/TabTransfer.h"
#include "cash/cashflow/TabCashFlow.h"
#include "dashboard/TabDashboard.h"
#include "inventory/adjustment/TabInventoryAdj.h"
#include "inventory/balance/TabStokAwal.h"
#include "inventory/stockcard/TabKartuStok.h"
#include "masterdata/agent/TabAgent.h"
#include "masterdata/bank/TabBank.h"
#include "masterdata/employee/TabEmployee.h"
#include "masterdata/item/TabItem.h"
#include "masterdata/jenisitem/TabJenisItem.h"
#include "masterdata/meja/TabMeja.h"
#include "masterdata/member/TabMember.h"
#include "masterdata/satuan/TabSatuan.h"
#include "masterdata/supplier/TabSupplier.h"
#include "printing/configuration/TabKitchenPrinter.h"
#include "purchasing/acquisition/TabPurchases.h"
#include "purchasing/creditnote/TabCreditNote.h"
#include "purchasing/payment/TabPayment.h"
#include "purchasing/purchaseorder/TabPurchaseOrder.h"
#include "sales/commission/TabAllKomisiAgen.h"
#include "sales/commission/TabKomisiAgen.h"
#include "sales/fastfood/TabFastFood.h"
#include "sales/kitchen/TabPesananMasuk.h"
#include "sales/list/TabDaftarPenjualan.h"
#include "sales/order/TabMakanDitempat.h"
#include "sales/receivable/TabPiutang.h"
#include "sales/takeaway/TabBawaPulang.h"

namespace
{
template <class Tab>
KorTab* make()
{
    return new Tab;
}
} // namespace

TabFactories allTabFactories()
{
    // One page a line, whatever the others are called.
    // clang-format off
    return {
        {"TabAgent", make<TabAgent>},
        {"TabAllKomisiAgen", make<TabAllKomisiAgen>},
        {"TabBank", make<TabBank>},
        {"TabBawaPulang", make<TabBawaPulang>},
        {"TabCashFlow", make<TabCashFlow>},
        {"TabCreditNote", make<TabCreditNote>},
        {"TabDaftarPenjualan", make<TabDaftarPenjualan>},
        {"TabDashboard", make<TabDashboard>},
        {"TabEmployee", make<TabEmployee>},
        {"TabFastFood", make<TabFastFood>},
        {"TabInventoryAdj", make<TabInventoryAdj>},
        {"TabItem", make<TabItem>},
        {"TabJenisItem", make<TabJenisItem>},
        {"TabKartuStok", make<TabKartuStok>},
        {"TabKeyTable", make<TabKeyTable>},
        {"TabKitchenPrinter", make<TabKitchenPrinter>},
        {"TabKomisiAgen", make<TabKomisiAgen>},
        {"TabMakanDitempat", make<TabMakanDitempat>},
        {"TabMeja", make<TabMeja>},
        {"TabMember", make<TabMember>},
        {"TabPayment", make<TabPayment>},
        {"TabPesananMasuk", make<TabPesananMasuk>},
        {"TabPiutang", make<TabPiutang>},
        {"TabPurchaseOrder", make<TabPurchaseOrder>},
        {"TabPurchases", make<TabPurchases>},
        {"TabSatuan", make<TabSatuan>},
        {"TabStokAwal", make<TabStokAwal>},
        {"TabSupplier", make<TabSupplier>},
        {"TabTransfer", make<TabTransfer>},
        {"TabUser", make<TabUser>},
        {"TabUserAccess", make<TabUserAccess>},
        {"TabUserGroup", make<TabUserGroup>},
    };
    // clang-format on
}
