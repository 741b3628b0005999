#include "zavel/order/OrderBoardModel.h"

#include "zavel/order/EntityOrder.h"

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

QString menuOf(const EntityOrder& order)
{
    QStringList names;
    for (const EntityOrderDetail* line : order.getDetails())
        names.append(line->getItem()->getNama());
    return names.join(", ");
}
} // namespace

void OrderBoardModel::addStatus(QString (*word)(int))
{
    m_statusColumn = columnCount();
    addField<EntityOrder>(QMetaType::QString, tr("Status"),
                          [word](const EntityOrder& o) { return word(o.getStatus()); });
}

void OrderBoardModel::addMenu()
{
    m_menuColumn = columnCount();
    addField<EntityOrder>(QMetaType::QString, tr("Menu"), menuOf);
}

QVariant OrderBoardModel::data(const QModelIndex& index, int role) const
{
    const auto* order = index.isValid() ? static_cast<const EntityOrder*>(entityAt(index.row())) : nullptr;
    if (!order)
        return {};
    switch (role) {
    case Qt::DecorationRole:
        return index.column() == m_statusColumn ? QVariant(statusMark(order->getStatus())) : QVariant();
    // Free tables are shown in a paler colour, so that occupied ones stand out.
    case Qt::ForegroundRole:
        return order->getStatus() == EntityOrder::EMPTY ? QVariant(QColor(quietInk)) : QVariant();
    // A long list of dishes does not fit into the cell.
    case Qt::ToolTipRole:
        return index.column() == m_menuColumn ? data(index) : QVariant();
    default:
        return AppEntityModel::data(index, role);
    }
}

QIcon OrderBoardModel::statusMark(int status) const
{
    const QString name = markName(status);
    if (name.isEmpty())
        return {};
    QIcon& mark = m_marks[status];
    if (mark.isNull()) {
        const QPixmap picture(":/icons/status_" + name + ".png");
        mark.addPixmap(picture);
        // A selected row is dark: the coloured marks stay as they are, the hollow one is drawn white.
        mark.addPixmap(status == EntityOrder::EMPTY ? whitened(picture) : picture, QIcon::Selected);
    }
    return mark;
}
