#include "pos/masterdata/item/TableModelGroupedItem.h"

#include "pos/masterdata/item/EntityGroupedItem.h"

namespace
{
/** A text of the component's item; empty if the item was not read. */
auto ofComponent(QString (EntityItem::*getter)() const)
{
    return [getter](const EntityGroupedItem& row) {
        return row.getOriginal() ? (row.getOriginal()->*getter)() : QString();
    };
}
} // namespace

TableModelGroupedItem::TableModelGroupedItem(const QList<KorEntity*>& components, QObject* parent)
    : KorEntityModel(components, parent)
{
    addId(tr("ID"));
    addField<EntityGroupedItem>(QMetaType::QString, tr("Code"), ofComponent(&EntityItem::getKode));
    addField<EntityGroupedItem>(QMetaType::QString, tr("Name"), ofComponent(&EntityItem::getNama));
    addField<EntityGroupedItem>(
        QMetaType::Int, tr("Qty"), [](const EntityGroupedItem& row) { return row.getJumlah(); }, RightAligned);
}
