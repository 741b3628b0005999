#pragma once

#include "support/ModalDriver.h"
#include "zavel/order/DialogSelectMenu.h"

#include <QApplication>
#include <QTest>

/** Replaces the text of the field. */
void typeInto(QWidget* form, const char* field, const QString& text);
/** Types code, Return, quantity, Return, as a waiter does for one line. */
void pick(OrderItemPicker* picker, const QString& code, const QString& qty);
/** The slips that were printed to the folder since the last call. */
QString takeSlips(const QString& folder);

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
    // Ask the application: the window itself reports active while the board behind it is.
    QTRY_COMPARE(QApplication::activeWindow(), form);
    QTest::keyClick(form, Qt::Key_F12);
}
