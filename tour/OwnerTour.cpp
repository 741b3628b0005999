#include "tour/OwnerTour.h"

#include "tour/Guide.h"
#include "tour/Steps.h"

#include <QFileInfo>

namespace
{
void sell(Guide& guide, const QString& guest, const QString& item, const QString& quantity, const QString& total)
{
    openForm(guide, "DialogFastFood");
    guide.fill("txtNamaPelanggan", guest);
    guide.key(Qt::Key_F3);
    guide.click("btnAdd");
    pick(guide, "DialogSelectFastFoodMenu", item, quantity);
    guide.key(Qt::Key_Return);
    endRound(guide, "DialogSelectFastFoodMenu", "DialogFastFood");
    guide.expectText("txtGrandTotal", total);
    guide.fill("txtPaid", total);
    guide.pressOk();
    guide.answer("Do you want to print this invoice ?", "No");
    guide.waitUntilClosed("DialogFastFood");
}

void sellSome(Guide& guide)
{
    guide.chapter("A short day");
    openPage(guide, "menuPenjualan", "actionFastfood", "btnAdd");
    sell(guide, "A walker-by", "fr", "3", "15.00");
    sell(guide, "Another one", "llp", "2", "12.00");
    guide.expectText("lblCount", "2 Items");
    guide.closePage();
}

void readReport(Guide& guide)
{
    guide.chapter("The owner reads what was sold");
    openPage(guide, "menuReports", "actionPenjualan", "reports");
    guide.chooseRow("reports", "Sales by item");
    guide.key(Qt::Key_F5);
    guide.expectRow("grid", "Fried Rice", "3");
    guide.expectRow("grid", "Rice with fresh vegetables", "2");
    guide.picture("report");
    guide.closePage();
}

void lookAtRights(Guide& guide)
{
    guide.chapter("Who may do what");
    openPage(guide, "menuMaster_Data", "actionUser_access", "tblPermission");
    guide.chooseRow("lvBusiness", "Sales");
    guide.picture("user-access");
    guide.closePage();
}

void lookAtPrinters(Guide& guide)
{
    guide.chapter("The kitchen's printer");
    guide.menu("menuConfiguration", "actionDapur", "menuPrinter");
    guide.chooseRow("tblKitchenPrinter", "Kitchen 1");
    guide.key(Qt::Key_F2);
    guide.waitForWindow("DialogKitchenFoodPrinter");
    guide.picture("kitchen-printer");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogKitchenFoodPrinter");
    guide.closePage();
}

void backUp(Guide& guide)
{
    guide.chapter("The evening's backup");
    const QString file = "evening.bak";
    guide.menu("menuConfiguration", "actionBackup_Database");
    guide.waitForWindow("DialogBackupDB");
    guide.fill("txtOutputFile", file);
    guide.click("btnBackup");
    guide.answer("DB Backup Selesai", "OK");
    guide.waitForWindow("DialogBackupDB");
    guide.waitFor("the verdict", [] { return QFileInfo("evening.bak").size() > 0; });
    guide.picture("backup");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("DialogBackupDB");
}

void readManual(Guide& guide)
{
    guide.chapter("The manual");
    guide.key(Qt::Key_F1);
    guide.waitForWindow("HelpWindow");
    guide.picture("manual");
    guide.key(Qt::Key_Escape);
    guide.waitUntilClosed("HelpWindow");
}
} // namespace

void playOwner(Guide& guide)
{
    logIn(guide);
    sellSome(guide);
    readReport(guide);
    lookAtRights(guide);
    lookAtPrinters(guide);
    backUp(guide);
    readManual(guide);
}
