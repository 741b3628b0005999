#include "pos/masterdata/item/TableModelItem.h"

#include "pos/masterdata/item/EntityItem.h"
#include "pos/masterdata/item/ItemStockReader.h"

namespace
{
constexpr int stockColumn = 7;

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
        [this](const EntityItem& item) { return m_stock ? m_stock->text(item.getId()) : QString(); }, RightAligned);
    addField<EntityItem>(QMetaType::QString, tr("Unit"),
                         [](const EntityItem& item) { return nameOf(item.getSatuan()); });
}

void TableModelItem::setStock(const ItemStockReader* stock)
{
    m_stock = stock;
    connect(stock, &ItemStockReader::changed, this, [this] {
        if (rowCount() > 0)
            emit dataChanged(index(0, stockColumn), index(rowCount() - 1, stockColumn));
    });
}
