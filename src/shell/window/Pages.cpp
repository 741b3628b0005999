#include "shell/window/Pages.h"

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

#include <algorithm>

namespace
{
template <class Tab, class = void>
struct ListOf
{
    static constexpr const char* name = "";
    static constexpr KorDialog* (*make)() = nullptr;
    static constexpr const QMetaObject* service = nullptr;
};

template <class Tab>
struct ListOf<Tab, std::void_t<typename Tab::Form>>
{
    inline static const char* const name = Tab::Form::staticMetaObject.className();
    static KorDialog* make() { return new typename Tab::Form; }
    inline static const QMetaObject* const service = &Tab::Business::staticMetaObject;
};

template <class Tab>
Page page(const char* topic = "", MenuEntry entry = {})
{
    return {Tab::staticMetaObject.className(),
            topic,
            entry,
            [] { return static_cast<KorTab*>(new Tab); },
            ListOf<Tab>::name,
            ListOf<Tab>::make,
            ListOf<Tab>::service};
}
} // namespace

const QList<Page>& allPages()
{
    // One page per line.
    static const QList<Page> pages{
        page<TabAgent>(),
        page<TabAllKomisiAgen>("owner.html#cash"),
        page<TabBank>("owner.html#cash"),
        page<TabBawaPulang>("cashier.html#takeaway"),
        page<TabCashFlow>("owner.html#cash"),
        page<TabCreditNote>("owner.html#purchasing"),
        page<TabDaftarPenjualan>("cashier.html#sales"),
        page<TabDashboard>("index.html"),
        page<TabEmployee>(),
        page<TabFastFood>("cashier.html#counter"),
        page<TabInventoryAdj>("owner.html#goods"),
        page<TabItem>("owner.html#begin"),
        page<TabJenisItem>(),
        page<TabKartuStok>("owner.html#goods"),
        page<TabKeyTable>(),
        page<TabKitchenPrinter>("owner.html#printers"),
        page<TabKomisiAgen>("owner.html#cash"),
        page<TabMakanDitempat>("waiter.html"),
        page<TabMeja>("owner.html#begin"),
        page<TabMember>(),
        page<TabPayment>("owner.html#purchasing"),
        page<TabPesananMasuk>("kitchen.html"),
        page<TabPiutang>("cashier.html#members"),
        page<TabPrintedSlips>("cashier.html#slips"),
        page<TabPurchaseOrder>("owner.html#purchasing"),
        page<TabPurchases>("owner.html#purchasing"),
        page<TabSatuan>(),
        page<TabStokAwal>("owner.html#goods"),
        page<TabSupplier>(),
        page<TabTransfer>("owner.html#cash"),
        page<TabUser>("owner.html#users"),
        page<TabUserAccess>("owner.html#users"),
        page<TabUserGroup>("owner.html#users"),
    };
    // clang-format on
    return pages;
}

const Page* findPage(const QString& className)
{
    const QList<Page>& pages = allPages();
    const auto found =
        std::find_if(pages.begin(), pages.end(), [&](const Page& page) { return page.className == className; });
    return found == pages.end() ? nullptr : &*found;
}
