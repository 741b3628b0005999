#include "tour/LanguageTour.h"

#include "tour/Guide.h"
#include "tour/Steps.h"

namespace
{
struct Page
{
    const char* menu;
    const char* action;
    const char* form;
    const char* subMenu = "";
};

const Page pages[] = {{"menuMaster_Data", "actionUser_access", ""},
                      {"menuMaster_Data", "actionBank", "DialogBank"},
                      {"menuMaster_Data", "actionMember", "DialogMember"},
                      {"menuMaster_Data", "actionItem", "DialogItem"},
                      {"menuPersediaan", "actionInventory_Adjustment", "DialogInventoryAdj"},
                      {"menuPersediaan", "actionKartu_Stok", ""},
                      {"menuPembelia", "actionPurchases_Receive_Inventory", "DialogPurchases"},
                      {"menuPembelia", "actionCredit_Note", "DialogCreditNote"},
                      {"menuPembelia", "actionHutang_Payments", "DialogPayment"},
                      {"menuPenjualan", "actionMakan_Ditempat", ""},
                      {"menuPenjualan", "actionFastfood", "DialogFastFood"},
                      {"menuPenjualan", "actionBawa_Pulang", "DialogBawaPulang"},
                      {"menuPenjualan", "actionPesanan_Masuk", ""},
                      {"menuPenjualan", "actionDaftar_Penjualan", ""},
                      {"menuPenjualan", "actionPiutang", "DialogPiutang"},
                      {"menuPenjualan", "actionPrinted_Slips", ""},
                      {"menuPenjualan", "actionDaftar_Pembayaran_Komisi", "DialogKomisiAgen", "menuKomisi_Agen"},
                      {"menuKas", "actionArus_Kas", "DialogCashFlow"},
                      {"menuReports", "actionPenjualan", ""},
                      {"menuConfiguration", "actionDapur", "DialogKitchenFoodPrinter", "menuPrinter"}};
} // namespace

void playLanguage(Guide& guide)
{
    logIn(guide);
    guide.chapter("The program learns Indonesian");
    guide.menu("menuConfiguration", "id", "menuLanguage_2");
    for (const Page& page : pages) {
        guide.menu(page.menu, page.action, page.subMenu);
        guide.picture(QString::fromLatin1(page.action).mid(6));
        if (*page.form) {
            openForm(guide, page.form);
            guide.picture(page.form);
            guide.key(Qt::Key_Escape);
            guide.waitUntilClosed(page.form);
        }
    }
    guide.chapter("On a small screen");
    guide.resizeMainWindow(QSize(1024, 768));
    for (const Page& page : pages) {
        guide.menu(page.menu, page.action, page.subMenu);
        guide.picture(QString::fromLatin1(page.action).mid(6));
    }
}
