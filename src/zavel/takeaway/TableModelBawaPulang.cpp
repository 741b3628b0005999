#include "zavel/takeaway/TableModelBawaPulang.h"

#include "zavel/takeaway/EntityBawaPulang.h"

TableModelBawaPulang::TableModelBawaPulang(const QList<KorEntity*>& orders, QObject* parent)
    : OrderBoardModel(orders, parent)
{
    addId(tr("Id"));
    addText(tr("Guest"), &EntityBawaPulang::getPemesan);
    addStatus(statusText);
    addMenu();
}

QString TableModelBawaPulang::statusText(int status)
{
    switch (status) {
    case EntityOrder::WAITING_FOR_MENU:
        return tr("Waiting for the menu");
    case EntityOrder::SERVED:
        return tr("Served");
    case EntityOrder::EMPTY:
        return tr("Empty");
    case EntityOrder::PAID:
        return tr("Paid");
    case EntityOrder::PARTIALY_PAID:
        return tr("Partially Paid");
    case EntityOrder::DONE:
        // Not translated: shown like this in every language.
        return "Selesai";
    case EntityOrder::UNPAID:
        return tr("Unpaid");
    default:
        return {};
    }
}
