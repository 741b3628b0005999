#include "zavel/order/DialogSelectMenu.h"

#include "pos/masterdata/item/ServiceTextBox.h"

DialogSelectMenu::DialogSelectMenu(EntityPool& items, QWidget* parent) : OrderItemPicker(items, parent)
{
    setWindowTitle(tr("Select a menu"));
    findItemsWith<ServiceTextBox>();
}
