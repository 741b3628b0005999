#include "pos/masterdata/item/ItemLineMapper.h"

#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

void ItemLineMapper::itemColumn(const ItemPartners& partners)
{
    reference("item_id", "integer not null", "Item", partners.items, "inner");
    addJoin("Jenis", partners.types, "inner", "item.jenis", "id");
    addJoin("Satuan", partners.units, "inner", "item.satuan", "id");
}

QStringList ItemLineMapper::lineIndexes(const QString& quantityColumn) const
{
    return {index(documentColumn(), '(' + documentColumn() + ')'),
            index("item", "(item_id, " + documentColumn() + ") INCLUDE (" + quantityColumn + ')')};
}
