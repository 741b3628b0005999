#pragma once

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/ItemTextBox.h"

#include <QLabel>
#include <QLineEdit>

/** Turns the filter of a list page into a field for an item's code. */
[[nodiscard]] inline ItemTextBox* itemFilter(const QWidget& page, QLabel& label)
{
    auto* code = page.findChild<QLineEdit*>("txtFilter");
    code->setToolTip(ItemTextBox::tr("Code of an item (Ctrl+F)"));
    label.setText(ItemTextBox::tr("Item :"));
    return new ItemTextBox(code, service<BusinessItem>("Item"));
}
