#include "shell/window/TabFactories.h"

#include "app/access/TabUser.h"
#include "app/access/TabUserAccess.h"
#include "app/access/TabUserGroup.h"
#include "app/numbers/TabKeyTable.h"
#include "pos/cash/ledger/TabCashFlow.h"
#include "pos/cash/transfer/TabTransfer.h"
#include "pos/inventory/adjustment/TabInventoryAdj.h"
#include "pos/inventory/balance/TabStokAwal.h"
#include "pos/inventory/stockcard/TabKartuStok.h"
#include "pos/masterdata/account/TabBank.h"
#include "pos/masterdata/agent/TabAgent.h"
#include "pos/masterdata/employee/TabEmployee.h"
#include "pos/masterdata/item/TabItem.h"
#include "pos/masterdata/itemtype/TabJenisItem.h"
#include "pos/masterdata/member/TabMember.h"
#include "pos/masterdata/supplier/TabSupplier.h"
#include "pos/masterdata/unit/TabSatuan.h"
#include "pos/printing/configuration/TabKitchenPrinter.h"
#include "pos/printing/list/TabPrintedSlips.h"
#include "pos/purchasing/creditnote/TabCreditNote.h"
#include "pos/purchasing/payment/TabPayment.h"
#include "pos/purchasing/purchase/TabPurchases.h"
#include "pos/purchasing/purchaseorder/TabPurchaseOrder.h"
#include "shell/dashboard/TabDashboard.h"
#include "zavel/commission/TabAllKomisiAgen.h"
#include "zavel/commission/TabKomisiAgen.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/fastfood/TabFastFood.h"
#include "zavel/kitchen/TabPesananMasuk.h"
#include "zavel/list/TabDaftarPenjualan.h"
#include "zavel/receivable/TabPiutang.h"
#include "zavel/tables/TabMeja.h"
#include "zavel/takeaway/TabBawaPulang.h"

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
        {"TabPrintedSlips", make<TabPrintedSlips>},
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
