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
    guide.menu("menuPenjualan", "actionMakan_Ditempat");
    guide.waitForWidget("tblMeja");
    guide.chooseRow("tblMeja", "Table 1");
    guide.key(Qt::Key_F12);
    guide.waitForWindow("DialogMakanDitempat");
    guide.fill("txtNamaPelanggan", "Ann and friends");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectMenu", "fr", "3");
    guide.key(Qt::Key_Return);
    pick(guide, "DialogSelectMenu", "llp", "2");
    guide.key(Qt::Key_Return);
    guide.waitForWindow("DialogSelectMenu");
    guide.key(Qt::Key_Escape);
    guide.waitForWindow("DialogMakanDitempat");
    guide.pressOk();
    guide.waitUntilClosed("DialogMakanDitempat");
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
    guide.pressOk();
    guide.waitUntilClosed("DialogBayarMakanDitempatDetailSplit");
}

void payGroup(Guide& guide, const QString& group, const QString& amount)
{
    guide.waitFor("the form of " + group, [group] {
        const QWidget* front = QApplication::activeWindow();
        const auto* number = front ? front->findChild<QLineEdit*>("txtKode") : nullptr;
        return number && number->text().endsWith(group);
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
    payGroup(guide, "Grp 1", "50");
    payGroup(guide, "Grp 2", "50");
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
    guide.menu("menuPenjualan", "actionFastfood");
    guide.waitForWidget("btnAdd");
    guide.key(Qt::Key_F12);
    guide.waitForWindow("DialogFastFood");
    guide.fill("txtNamaPelanggan", "A walker-by");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectFastFoodMenu", "fr", "2");
    guide.key(Qt::Key_Return);
    guide.waitForWindow("DialogSelectFastFoodMenu");
    guide.key(Qt::Key_Escape);
    guide.waitForWindow("DialogFastFood");
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
    guide.menu("menuPenjualan", "actionBawa_Pulang");
    guide.waitForWidget("btnAdd");
    guide.key(Qt::Key_F12);
    guide.waitForWindow("DialogBawaPulang");
    guide.fill("txtNamaPelanggan", "Budi");
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectBawaPulangMenu", "llp", "2", "extra hot");
    guide.key(Qt::Key_Return);
    guide.waitForWindow("DialogSelectBawaPulangMenu");
    guide.key(Qt::Key_Escape);
    guide.waitForWindow("DialogBawaPulang");
    guide.picture("take-away-order");
    guide.pressOk();
    guide.waitUntilClosed("DialogBawaPulang");
    guide.expectSlip({"Rice with fresh", "extra hot"});
    guide.expectRow("tblMeja", "Budi", "Waiting for the menu");
    guide.picture("take-away-orders");
}

void cookIt(Guide& guide)
{
    guide.chapter("The kitchen sees it and answers");
    guide.menu("menuPenjualan", "actionPesanan_Masuk");
    guide.waitForWidget("tblQueue");
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
    guide.menu("menuPenjualan", "actionBawa_Pulang");
    guide.waitForWidget("btnPay");
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
    guide.menu("menuPenjualan", "actionDaftar_Penjualan");
    guide.waitForWidget("btnReset");
    guide.expectText("lblCount", "5 Items");
    guide.picture("all-sales");
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
