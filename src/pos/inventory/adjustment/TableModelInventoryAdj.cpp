#include "pos/inventory/adjustment/TableModelInventoryAdj.h"

#include "pos/inventory/stock/EntityStockTake.h"

TableModelInventoryAdj::TableModelInventoryAdj(const QList<KorEntity*>& takes, QObject* parent)
    : AppEntityModel(takes, parent)
{
    using Take = EntityStockTake;
    const auto quantity = [this](const QString& header, int (Take::*getter)() const) {
        addField<Take>(
            QMetaType::Int, header, [getter](const Take& take) { return (take.*getter)(); }, RightAligned);
    };
    addField<Take>(QMetaType::QString, tr("Code"), [](const Take& take) { return take.getItem()->getKode(); });
    addField<Take>(QMetaType::QString, tr("Name"), [](const Take& take) { return take.getItem()->getNama(); });
    addDate<Take>(tr("Date"), [](const Take& take) { return take.getStockTakeDate(); });
    quantity(tr("Old Qty"), &Take::getQtyBefore);
    quantity(tr("Adjust Qty by"), &Take::getQtyAdj);
    quantity(tr("New Qty"), &Take::getQty);
    addText(tr("Reason to Adjust"), &Take::getReason);
}
