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
    guide.key(Qt::Key_Escape);
}
} // namespace

void playSelling(Guide& guide)
{
    logIn(guide);
    orderForThree(guide);
    payApart(guide);
}
