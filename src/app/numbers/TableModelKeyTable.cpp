#include "app/numbers/TableModelKeyTable.h"

#include "app/numbers/EntityKey.h"

TableModelKeyTable::TableModelKeyTable(const QList<KorEntity*>& keys, QObject* parent) : KorEntityModel(keys, parent)
{
    const auto addNumber = [this](const QString& header, int (EntityKey::*getter)() const) {
        addField<EntityKey>(
            QMetaType::Int, header, [getter](const EntityKey& key) { return (key.*getter)(); }, RightAligned);
    };
    addText(tr("Name"), &EntityKey::getKeyName);
    addNumber(tr("Next No"), &EntityKey::getNextId);
    addNumber(tr("Increment By"), &EntityKey::getIncrementBy);
    addNumber(tr("Number of Zero"), &EntityKey::getNoZero);
    addText(tr("Format"), &EntityKey::getFormat);
    addText(tr("Description"), &EntityKey::getDescription);
}
