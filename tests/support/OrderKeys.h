#pragma once

#include "support/ModalDriver.h"
#include "zavel/order/DialogSelectMenu.h"

#include <QApplication>
#include <QTest>

/** Types over what stands in the field. */
void typeInto(QWidget* form, const char* field, const QString& text);
/** Code, Return, quantity, Return: the whole of what a waiter does for a line. */
void pick(OrderItemPicker* picker, const QString& code, const QString& qty);
/** What was printed to the folder since the last look, slip after slip. */
QString takeSlips(const QString& folder);

/** Calls the pickers with F12, keys in codes and quantities, ends the round, and goes on with the form. */
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
    // Its window counts as active while the board behind it is, so the program has to be asked.
    QTRY_COMPARE(QApplication::activeWindow(), form);
    QTest::keyClick(form, Qt::Key_F12);
}
