#include "support/OrderKeys.h"

void pick(OrderItemPicker* picker, const QString& code, const QString& qty)
{
    typeInto(picker, "txtCode", code);
    confirm(picker, "txtCode");
    QLineEdit* quantity = box(picker, "txtQty");
    QTest::keyClicks(quantity, qty);
    QTest::keyClick(quantity, Qt::Key_Return);
}
