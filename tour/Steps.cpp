#include "tour/Steps.h"

#include "tour/Guide.h"

void logIn(Guide& guide)
{
    guide.chapter("Log in");
    guide.waitForWindow("DialogLogin");
    guide.fill("txtUsername", "admin");
    guide.fill("txtPassword", "wrong");
    guide.key(Qt::Key_Return);
    guide.answer("Invalid login", "OK");
    guide.fill("txtPassword", "Qx7!Rm2z");
    guide.picture("login");
    guide.key(Qt::Key_Return);
    guide.waitUntilClosed("DialogLogin");
    guide.waitForWindow("MainWindow");
    guide.resizeMainWindow(QSize(1366, 768));
    guide.chooseLanguage();
    guide.picture("main-window");
}

void pick(Guide& guide, const QString& window, const QString& code, const QString& quantity, const QString& notes)
{
    guide.waitForWindow(window);
    guide.lookUp("txtCode", code);
    guide.key(Qt::Key_Return);
    guide.fill("txtQty", quantity);
    if (!notes.isEmpty())
        guide.fill("txtNotes", notes);
}

void endRound(Guide& guide, const QString& picker, const QString& form)
{
    guide.waitForWindow(picker);
    guide.key(Qt::Key_Escape);
    guide.waitForWindow(form);
}

void openPage(Guide& guide, const QString& menu, const QString& action, const QString& widget)
{
    guide.menu(menu, action);
    guide.waitForWidget(widget);
}

void openForm(Guide& guide, const QString& form)
{
    guide.key(Qt::Key_F12);
    guide.waitForWindow(form);
}

void confirm(Guide& guide, const QString& form)
{
    guide.pressOk();
    guide.waitUntilClosed(form);
}
