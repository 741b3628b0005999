#include "zavel/order/OrderLinesModel.h"

#include "zavel/order/EntityOrderDetail.h"

OrderLinesModel::OrderLinesModel(const QList<KorEntity*>& lines, QObject* parent) : AppEntityModel(lines, parent)
{
    using Line = EntityOrderDetail;
    addField<Line>(QMetaType::QString, tr("Code"), [](const Line& line) { return line.getItem()->getKode(); });
    addField<Line>(QMetaType::QString, tr("Name"), [](const Line& line) { return line.getItem()->getNama(); });
    addField<Line>(
        QMetaType::Int, tr("Qty"), [](const Line& line) { return QString::number(line.getQty()); }, RightAligned);
    addField<Line>(QMetaType::QString, tr("Unit"), [](const Line& line) {
        const EntitySatuan* unit = line.getItem()->getSatuan();
        return unit ? unit->getNama() : QString();
    });
    // The item's current price, which may differ from the price at the time of the order.
    addMoney<Line>(tr("Unit Price"), [](const Line& line) { return line.getItem()->getHargaJualLokal(); });
    addMoney<Line>(tr("Amount"), [](const Line& line) { return line.getTotal(); });
    addField<Line>(QMetaType::QString, tr("Status"), [this](const Line& line) { return statusText(line); });
    addText(tr("Description"), &Line::getDescription);
}

QString OrderLinesModel::statusText(const EntityOrderDetail& line) const { return line.getKitchenStatus(); }
