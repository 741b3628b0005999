#include "tour/SellingTour.h"

#include "tour/Guide.h"
#include "tour/Steps.h"

#include <QApplication>
#include <QLineEdit>

namespace
{
void orderForThree(Guide& guide)
{
    guide.chapter("Three friends sit down");
    openPage(guide, "menuPenjualan", "actionMakan_Ditempat", "tblMeja");
    guide.chooseRow("tblMeja", "Table 1");
    openForm(guide, "DialogMakanDitempat");
    guide.fill("txtNamaPelanggan", "Ann and friends");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectMenu", "fr", "3");
    guide.key(Qt::Key_Return);
    pick(guide, "DialogSelectMenu", "llp", "2");
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectMenu", "DialogMakanDitempat");
    confirm(guide, "DialogMakanDitempat");
    guide.expectSlip({"Fried Rice"});
}

void splitOff(Guide& guide, const QString& item, const QString& quantity, int group)
{
    guide.chooseRow("tblDetail", item);
    guide.click("btnSplit");
    guide.waitForWindow("DialogBayarMakanDitempatDetailSplit");
    guide.fill("txtQtySplit", quantity);
    guide.key(Qt::Key_Tab);
    for (int step = 1; step < group; ++step)
        guide.key(Qt::Key_Down);
    if (group > 1)
        guide.picture("split-line");
    confirm(guide, "DialogBayarMakanDitempatDetailSplit");
}

void payGroup(Guide& guide, const QString& group, const QString& amount)
{
    guide.waitFor("the form of group " + group, [group] {
        const QWidget* front = QApplication::activeWindow();
        const auto* number = front ? front->findChild<QLineEdit*>("txtKode") : nullptr;
        return number && number->text().endsWith(' ' + group);
    });
    guide.fill("txtPaid", amount);
    guide.picture("group");
    guide.click("btnPrintBill");
    guide.expectSlip({"Table  : Table 1", "Grand Total"});
    guide.key(Qt::Key_Escape);
}

void payApart(Guide& guide)
{
    guide.chapter("They pay apart");
    guide.chooseRow("tblMeja", "Table 1");
    guide.click("btnPay");
    guide.waitForWindow("DialogBayarMakanDitempat");
    guide.click("cbShowSplit");
    splitOff(guide, "Fried Rice", "1", 1);
    splitOff(guide, "Rice with fresh vegetables", "1", 2);
    guide.picture("split");
    guide.fill("txtPaid", "100");
    guide.click("btnProcessSplit");
    guide.answer("Are you sure you want to split this invoice?", "Yes");
    guide.answer("Do you want to print this invoice?", "No");
    payGroup(guide, "1", "50");
    payGroup(guide, "2", "50");
    guide.answer("Are you done with this table: Table 1 ?", "Yes");
    guide.waitForWindow("DialogBayarMakanDitempat");
    guide.picture("split-paid");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogBayarMakanDitempat");
    guide.expectRow("tblMeja", "Table 1", "Empty");
    guide.closePage();
}
void sellOverTheCounter(Guide& guide)
{
    guide.chapter("A sale over the counter");
    openPage(guide, "menuPenjualan", "actionFastfood", "btnAdd");
    openForm(guide, "DialogFastFood");
    guide.fill("txtNamaPelanggan", "A walker-by");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectFastFoodMenu", "fr", "2");
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectFastFoodMenu", "DialogFastFood");
    guide.expectText("txtGrandTotal", "10.00");
    guide.key(Qt::Key_F9);
    guide.fill("txtPaid", "20");
    guide.expectText("txtNetDue", "10.00");
    guide.picture("counter");
    guide.pressOk();
    guide.answer("Do you want to print this invoice ?", "Yes");
    guide.expectSlip({"A walker-by", "Fried Rice", "Change", "10"});
    guide.waitUntilClosed("DialogFastFood");
    guide.expectRow("tblMeja", "A walker-by", "Fully Paid");
    guide.picture("counter-list");
    guide.closePage();
}

void orderToTakeAway(Guide& guide)
{
    guide.chapter("An order to take away");
    openPage(guide, "menuPenjualan", "actionBawa_Pulang", "btnAdd");
    openForm(guide, "DialogBawaPulang");
    guide.fill("txtNamaPelanggan", "Budi");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectBawaPulangMenu", "llp", "2", "extra hot");
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectBawaPulangMenu", "DialogBawaPulang");
    guide.picture("take-away-order");
    confirm(guide, "DialogBawaPulang");
    guide.expectSlip({"Rice with fresh", "extra hot"});
    guide.expectRow("tblMeja", "Budi", "Waiting for the menu");
    guide.picture("take-away-orders");
}

void cookIt(Guide& guide)
{
    guide.chapter("The kitchen sees it and answers");
    openPage(guide, "menuPenjualan", "actionPesanan_Masuk", "tblQueue");
    guide.chooseRow("tblQueue", "Take Away:1");
    guide.expectRow("tblMenu", "Rice with fresh vegetables", "extra hot");
    guide.chooseRow("tblMenu", "Rice with fresh vegetables");
    guide.choose("ddlNote", "Processed");
    guide.click("btnSendStatus");
    guide.expectRow("tblMenu", "Rice with fresh vegetables", "Processed");
    guide.picture("kitchen");
    guide.chooseRow("tblQueue", "Take Away:1");
    guide.click("btnPrint");
    guide.expectSlip({"Rice with fresh", "extra hot"});
    guide.closePage();
}

void handOver(Guide& guide)
{
    guide.chapter("The guest pays and goes");
    openPage(guide, "menuPenjualan", "actionBawa_Pulang", "btnPay");
    guide.chooseRow("tblMeja", "Budi");
    guide.click("btnPay");
    guide.waitForWindow("DialogBayarBawaPulang");
    guide.expectText("txtGrandTotal", "12.00");
    guide.fill("txtPaid", "12");
    guide.picture("take-away-payment");
    guide.click("btnPrint");
    guide.expectSlip({"Budi", "Rice with fresh", "Grand Total", "12"});
    guide.answer("Do you want to close this order: 1 ?", "Yes");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogBayarBawaPulang");
    guide.expectText("lblCount", "0 Items");
    guide.picture("take-away-done");
    guide.closePage();
}

void lookBack(Guide& guide)
{
    guide.chapter("The owner looks at the evening");
    openPage(guide, "menuPenjualan", "actionDaftar_Penjualan", "btnReset");
    guide.expectText("lblCount", "5 Items");
    guide.picture("all-sales");
    guide.closePage();
    openPage(guide, "menuPenjualan", "actionPiutang", "btnAdd");
    openForm(guide, "DialogPiutang");
    guide.picture("member-payment");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogPiutang");
    guide.closePage();
}
} // namespace

void playSelling(Guide& guide)
{
    logIn(guide);
    orderForThree(guide);
    payApart(guide);
    sellOverTheCounter(guide);
    orderToTakeAway(guide);
    cookIt(guide);
    handOver(guide);
    lookBack(guide);
}
