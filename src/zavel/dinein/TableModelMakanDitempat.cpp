#include "zavel/dinein/TableModelMakanDitempat.h"

#include "zavel/dinein/EntityMakanDitempat.h"

TableModelMakanDitempat::TableModelMakanDitempat(const QList<KorEntity*>& orders, QObject* parent)
    : OrderBoardModel(orders, parent)
{
    using Order = EntityMakanDitempat;
    addField<Order>(QMetaType::QString, tr("Table Code"), [](const Order& o) { return o.getMeja()->getKode(); });
    addField<Order>(QMetaType::QString, tr("Table Name"), [](const Order& o) { return o.getMeja()->getNama(); });
    addText(tr("Guest"), &Order::getPemesan);
    addStatus(statusText);
    addText(tr("From Table"), &Order::getPindahMeja);
    addMenu();
}

QString TableModelMakanDitempat::statusText(int status)
{
    switch (status) {
    case EntityOrder::WAITING_FOR_MENU:
        return tr("Waiting for the menu");
    case EntityOrder::SERVED:
        return tr("Served");
    case EntityOrder::EMPTY:
        return tr("Empty");
    case EntityOrder::PAID:
        return tr("Fully Paid");
    case EntityOrder::PARTIALY_PAID:
        return tr("Partially Paid");
    case EntityOrder::DONE:
        return tr("Done");
    case EntityOrder::UNPAID:
        return tr("Unpaid");
    default:
        return {};
    }
}
