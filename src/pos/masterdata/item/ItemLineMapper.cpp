#include "pos/masterdata/item/ItemLineMapper.h"

#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

void ItemLineMapper::documentColumn(const QString& name, const QString& property, KorDataMapper* document)
{
    m_documentColumn = name;
    column(name, "integer not null", property);
    addJoin(property, document, "inner", name, "id");
}

void ItemLineMapper::itemColumn(const ItemPartners& partners)
{
    reference("item_id", "integer not null", "Item", partners.items, "inner");
    addJoin("Jenis", partners.types, "inner", "item.jenis", "id");
    addJoin("Satuan", partners.units, "inner", "item.satuan", "id");
}

QList<KorEntity*> ItemLineMapper::findByDocument(int documentId)
{
    return findMany(KorConditions().equals(m_documentColumn, documentId).ascending(tableName() + ".id"));
}

QStringList ItemLineMapper::lineIndexes(const QString& documentColumn, const QString& quantityColumn) const
{
    return {index(documentColumn, '(' + documentColumn + ')'),
            index("item", "(item_id, " + documentColumn + ") INCLUDE (" + quantityColumn + ')')};
}
