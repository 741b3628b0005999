#include "zavel/kitchen/TableModelQueueMenu.h"

#include "zavel/order/EntityOrderDetail.h"

TableModelQueueMenu::TableModelQueueMenu(int type, const QList<KorEntity*>& lines, QObject* parent)
    : AppEntityModel(lines, parent), m_type(type)
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
    addText(tr("Status"), &Line::getKitchenStatus);
    addText(tr("Description"), &Line::getDescription);
    const auto addMoment = [this](const QString& header, QDateTime (KorEntity::*getter)() const) {
        addField<Line>(QMetaType::QDateTime, header,
                       [this, getter](const Line& line) { return dateTimeText((line.*getter)()); });
    };
    addMoment(tr("Created"), &Line::getCreatedTime);
    addMoment(tr("Updated"), &Line::getUpdatedTime);
}
