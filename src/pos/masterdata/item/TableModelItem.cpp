#include "pos/masterdata/item/TableModelItem.h"

#include "pos/masterdata/item/EntityItem.h"

namespace
{
QString classText(const EntityItem& item)
{
    switch (item.getItemType()) {
    case EntityItem::INV:
        return QStringLiteral("INV");
    case EntityItem::SRV:
        return QStringLiteral("SRV");
    default:
        return QString::number(item.getItemType());
    }
}

/** The name of a type or unit, which old rows may not have. */
template <class Partner>
QString nameOf(const Partner* partner)
{
    return partner ? partner->getNama() : QString();
}
} // namespace

TableModelItem::TableModelItem(const QList<KorEntity*>& items, QObject* parent) : AppEntityModel(items, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityItem::getKode);
    addText(tr("Name"), &EntityItem::getNama);
    addField<EntityItem>(QMetaType::QString, tr("Class"), classText);
    addField<EntityItem>(
        QMetaType::QString, tr("Type"), [](const EntityItem& item) { return nameOf(item.getJenis()); }, RightAligned);
    addMoney<EntityItem>(tr("Unit Cost"), [](const EntityItem& item) { return item.getHargaBeli(); });
    addMoney<EntityItem>(tr("Sales Price"), [](const EntityItem& item) { return item.getHargaJualLokal(); });
    addField<EntityItem>(
        QMetaType::QString, tr("Stock"),
        [this](const EntityItem& item) { return QString::number(m_stock.value(item.getId())); }, RightAligned);
    addField<EntityItem>(QMetaType::QString, tr("Unit"),
                         [](const EntityItem& item) { return nameOf(item.getSatuan()); });
}
