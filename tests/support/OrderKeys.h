#pragma once

#include "support/Hands.h"
#include "zavel/order/DialogSelectMenu.h"

/** Code, Return, quantity, Return: the whole of what a waiter does for a line. */
void pick(OrderItemPicker* picker, const QString& code, const QString& qty);

/** Opens the pickers with F12, types codes and quantities, cancels the last picker and continues with the form. */
template <class Form>
void keyIn(ModalDriver& people, Form* form, const QList<QPair<QString, QString>>& lines,
           const std::function<void(Form*)>& then)
{
    for (const auto& line : lines)
        people.expect<DialogSelectMenu>([line](DialogSelectMenu* picker) { pick(picker, line.first, line.second); });
    people.expect<DialogSelectMenu>([&people, then](DialogSelectMenu* picker) {
        people.expect<Form>(then);
        QTest::keyClick(picker, Qt::Key_Escape);
    });
    bringToFront(form);
    QTest::keyClick(form, Qt::Key_F12);
}
