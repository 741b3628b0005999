#pragma once

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/ItemTextBox.h"

#include <QLabel>
#include <QLineEdit>

/** Makes the filter of a list page a box for the code of an item. */
[[nodiscard]] inline ItemTextBox* itemFilter(const QWidget& page, QLabel& label)
{
    auto* code = page.findChild<QLineEdit*>("txtFilter");
    code->setToolTip(ItemTextBox::tr("Code of an item (Ctrl+F)"));
    label.setText(ItemTextBox::tr("Item :"));
    return new ItemTextBox(code, service<BusinessItem>("Item"));
}
