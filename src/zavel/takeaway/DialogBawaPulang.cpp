#include "zavel/takeaway/DialogBawaPulang.h"

#include "zavel/takeaway/EntityBawaPulang.h"
#include "zavel/takeaway/TabBawaPulangDetail.h"

#include "zavel/order/ui_OrderDialog.h"

DialogBawaPulang::DialogBawaPulang(QWidget* parent) : OrderDialog(new TabBawaPulangDetail, parent)
{
    for (QWidget* tableField : QList<QWidget*>{ui().lblKode, ui().txtKode, ui().txtMeja})
        tableField->hide();
    focusLater(ui().txtNamaPelanggan);
}

KorEntity* DialogBawaPulang::getEntity()
{
    auto* order = heldOrNew<EntityBawaPulang>();
    writeTo(order);
    return order;
}

void DialogBawaPulang::setEntity(KorEntity* entity)
{
    hold(entity);
    showOrder(*held<EntityBawaPulang>());
}
