#include "sales/takeaway/DialogBawaPulang.h"

#include "sales/takeaway/EntityBawaPulang.h"
#include "sales/takeaway/TabBawaPulangDetail.h"

#include "ui_OrderDialog.h"

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
