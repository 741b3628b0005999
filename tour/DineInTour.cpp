#include "tour/DineInTour.h"

#include "tour/Guide.h"
#include "tour/Steps.h"

namespace
{
void masterData(Guide& guide)
{
    guide.chapter("The owner adds a table");
    openPage(guide, "menuMaster_Data", "actionMeja", "tblMeja");
    openForm(guide, "DialogMeja");
    guide.fill("txtKode", "M1");
    guide.fill("txtNama", "Window");
    guide.key(Qt::Key_Return);
    guide.answer("This table code is already in use please use another code", "OK");
    guide.fill("txtKode", "w1");
    guide.picture("table-form");
    guide.key(Qt::Key_Return);
    guide.waitUntilClosed("DialogMeja");
    guide.expectText("lblCount", "3 Items");
    guide.picture("tables");
    guide.closePage();

    openPage(guide, "menuMaster_Data", "actionItem", "tblItem");
    guide.expectText("lblCount", "4 Items");
    guide.picture("items");
    guide.chooseRow("tblItem", "Fried Rice");
    guide.key(Qt::Key_F2);
    guide.waitForWindow("DialogItem");
    guide.picture("item-form");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogItem");
    guide.closePage();
}

void takeOrder(Guide& guide)
{
    guide.chapter("A waiter takes the order of a table");
    openPage(guide, "menuPenjualan", "actionMakan_Ditempat", "tblMeja");
    guide.chooseRow("tblMeja", "Table 1");
    guide.picture("board");
    openForm(guide, "DialogMakanDitempat");
    guide.lookUp("txtMember", "m12");
    guide.picture("member-lookup");
    guide.key(Qt::Key_Return);
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectMenu", "fr", "2", "no chili");
    guide.picture("menu-picker");
    guide.key(Qt::Key_Return);
    // The picker opens again until it is cancelled.
    pick(guide, "DialogSelectMenu", "llp", "2");
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectMenu", "DialogMakanDitempat");
    guide.click("btnAddInv");
    pick(guide, "DialogSelectInventory", "ns", "4");
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectInventory", "DialogMakanDitempat");
    guide.expectText("lblTotal", "$30.00");
    guide.picture("order");
    confirm(guide, "DialogMakanDitempat");

    guide.expectSlip({"Table  : m1", "Member : member 1 m123", "Fried Rice", "no chili", "Rice with fresh", "Total"});
    guide.expectRow("tblMeja", "Table 1", "Waiting for the menu");
    guide.picture("board-occupied");
}

void changeOrder(Guide& guide)
{
    guide.chapter("The guests want more, and then another table");
    guide.chooseRow("tblMeja", "Table 1");
    guide.key(Qt::Key_F2);
    guide.waitForWindow("DialogMakanDitempat");
    guide.chooseRow("tblMenu", "Fried Rice");
    guide.click("btnEdit");
    guide.waitForWindow("DialogSelectMenu");
    guide.fill("txtQty", "4");
    guide.key(Qt::Key_Return);
    guide.waitForWindow("DialogMakanDitempat");
    guide.expectText("lblTotal", "$40.00");
    guide.lookUp("txtKode", "m2");
    guide.key(Qt::Key_Return);
    guide.picture("order-changed");
    confirm(guide, "DialogMakanDitempat");
    guide.expectSlip({"Table  : m1>m2", "*Fried Rice", "     4"});
    guide.expectRow("tblMeja", "Table 2", "Waiting for the menu");
    guide.expectRow("tblMeja", "Table 1", "Empty");
    guide.picture("board-moved");

    guide.chooseRow("tblMeja", "Table 2");
    guide.click("btnPrint");
    guide.expectSlip({"Brintel", "Table  : Table 2", "Fried Rice"});
}

void pay(Guide& guide)
{
    guide.chapter("The cashier takes the money");
    guide.chooseRow("tblMeja", "Table 2");
    guide.click("btnPay");
    guide.waitForWindow("DialogBayarMakanDitempat");
    guide.expectText("txtSubTotal", "40.00");
    guide.fill("txtDiscPerc", "10");
    guide.key(Qt::Key_Tab);
    guide.fill("txtTaxPerc", "10");
    guide.key(Qt::Key_Tab);
    guide.fill("txtServicePerc", "5");
    guide.key(Qt::Key_Tab);
    guide.expectText("txtDiscount", "4.00");
    guide.expectText("txtTax", "4.00");
    guide.expectText("txtGrandTotal", "42.00");
    guide.lookUp("txtEmployee", "emp");
    guide.key(Qt::Key_Return);
    guide.key(Qt::Key_F9);
    guide.fill("txtPaid", "40");
    guide.expectText("lblNetDue", "Less :");
    guide.fill("txtPaid", "50");
    guide.expectText("lblNetDue", "Change :");
    guide.expectText("txtNetDue", "8.00");
    guide.picture("payment");
    guide.click("btnPrintBill");
    guide.answer("Are you done with this table: Table 2 ?", "Yes");
    guide.expectSlip({"Table  : Table 2", "Member : member 1 m123", "Sub total", "Grand Total", "42", "Change", "8"});
    guide.waitForWindow("DialogBayarMakanDitempat");
    guide.note("invoice no. " + guide.textOf("txtKode"));
    guide.picture("payment-saved");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogBayarMakanDitempat");
    guide.expectRow("tblMeja", "Table 2", "Empty");
    guide.picture("board-free");
}
} // namespace

void playDineIn(Guide& guide)
{
    logIn(guide);
    masterData(guide);
    takeOrder(guide);
    changeOrder(guide);
    pay(guide);
}
