#include "zavel/order/DialogSelectInventory.h"

#include "pos/masterdata/item/InventoryTextBox.h"

DialogSelectInventory::DialogSelectInventory(EntityPool& items, QWidget* parent) : OrderItemPicker(items, parent)
{
    setWindowTitle(tr("Select an inventory item"));
    findItemsWith<InventoryTextBox>();
}
