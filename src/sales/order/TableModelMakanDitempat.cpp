#include "sales/order/TableModelMakanDitempat.h"

#include "sales/order/EntityMakanDitempat.h"

#include <QColor>
#include <QPainter>

namespace
{
constexpr QRgb quietInk = 0xff52606d;

QString markName(int status)
{
    switch (status) {
    case EntityOrder::WAITING_FOR_MENU:
        return "waiting";
    case EntityOrder::SERVED:
    case EntityOrder::DONE:
        return "done";
    case EntityOrder::EMPTY:
        return "empty";
    case EntityOrder::PAID:
        return "paid";
    case EntityOrder::PARTIALY_PAID:
        return "partial";
    case EntityOrder::UNPAID:
        return "unpaid";
    default:
        return {};
    }
}

QPixmap whitened(QPixmap picture)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), Qt::white);
    return picture;
}

QString menuOf(const EntityMakanDitempat& order)
{
    QStringList names;
    for (const EntityOrderDetail* line : order.getDetails())
        names.append(line->getItem()->getNama());
    return names.join(", ");
}
} // namespace

TableModelMakanDitempat::TableModelMakanDitempat(const QList<KorEntity*>& orders, QObject* parent)
    : AppEntityModel(orders, parent)
{
    using Order = EntityMakanDitempat;
    addField<Order>(QMetaType::QString, tr("Table Code"), [](const Order& o) { return o.getMeja()->getKode(); });
    addField<Order>(QMetaType::QString, tr("Table Name"), [](const Order& o) { return o.getMeja()->getNama(); });
    addField<Order>(QMetaType::QString, tr("Guest"), [](const Order& o) { return o.getPemesan(); });
    addField<Order>(QMetaType::QString, tr("Status"), [](const Order& o) { return statusText(o.getStatus()); });
    addField<Order>(QMetaType::QString, tr("From Table"), [](const Order& o) { return o.getPindahMeja(); });
    addField<Order>(QMetaType::QString, tr("Menu"), menuOf);
}

QVariant TableModelMakanDitempat::data(const QModelIndex& index, int role) const
{
    const auto* order = index.isValid() ? static_cast<const EntityMakanDitempat*>(entityAt(index.row())) : nullptr;
    if (!order)
        return {};
    switch (role) {
    case Qt::DecorationRole:
        return index.column() == Status ? QVariant(statusMark(order->getStatus())) : QVariant();
    // Free tables step back, so that the eye lands on the guests.
    case Qt::ForegroundRole:
        return order->getStatus() == EntityOrder::EMPTY ? QVariant(QColor(quietInk)) : QVariant();
    // A long order does not fit into its cell.
    case Qt::ToolTipRole:
        return index.column() == Menu ? data(index) : QVariant();
    default:
        return AppEntityModel::data(index, role);
    }
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

QIcon TableModelMakanDitempat::statusMark(int status) const
{
    const QString name = markName(status);
    if (name.isEmpty())
        return {};
    QIcon& mark = m_marks[status];
    if (mark.isNull()) {
        const QPixmap picture(":/icons/status_" + name + ".png");
        mark.addPixmap(picture);
        // A selected row is dark: the coloured marks stay as they are there, the hollow one turns white.
        mark.addPixmap(status == EntityOrder::EMPTY ? whitened(picture) : picture, QIcon::Selected);
    }
    return mark;
}
