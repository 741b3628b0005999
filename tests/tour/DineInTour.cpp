#include "tour/DineInTour.h"

#include "tour/Guide.h"

void playDineIn(Guide& guide)
{
    guide.chapter("Log in");
    guide.waitForWindow("DialogLogin");
    guide.fill("txtUsername", "admin");
    guide.fill("txtPassword", "Qx7!Rm2z");
    guide.picture("login");
    guide.key(Qt::Key_Return);
    guide.waitUntilClosed("DialogLogin");
    guide.waitForWindow("MainWindow");

    guide.chapter("The board");
    guide.menu("menuPenjualan", "actionMakan_Ditempat");
    guide.waitFor("the board", [] { return true; });
    guide.picture("board");
}
