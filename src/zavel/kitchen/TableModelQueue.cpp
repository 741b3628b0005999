#include "zavel/kitchen/TableModelQueue.h"

#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/kitchen/EntityQueue.h"

TableModelQueue::TableModelQueue(const QList<KorEntity*>& queue, QObject* parent) : AppEntityModel(queue, parent)
{
    addField<EntityQueue>(QMetaType::QString, tr("Code"), [](const EntityQueue& row) {
        return row.getType() == TakeAwayOrder ? tr("Take Away:") + QString::number(row.getOrder()->getId())
                                              : static_cast<EntityMakanDitempat*>(row.getOrder())->tableTrail();
    });
    addField<EntityQueue>(
        QMetaType::QString, tr("Elapsed Time"), [](const EntityQueue& row) { return elapsedText(row.getDateTime()); },
        RightAligned);
}
