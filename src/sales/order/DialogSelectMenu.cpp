#include "sales/order/DialogSelectMenu.h"

#include "masterdata/item/ServiceTextBox.h"

DialogSelectMenu::DialogSelectMenu(EntityPool& items, QWidget* parent) : OrderItemPicker(items, parent)
{
    setWindowTitle(tr("Select a menu"));
    findItemsWith<ServiceTextBox>();
}
