#pragma once

#include "app/persistence/AppLineMapper.h"

class DataMapperItem;
class DataMapperJenisItem;
class DataMapperSatuan;

/** What a line needs to read its item with the item's type and unit. */
struct ItemPartners
{
    DataMapperItem* items;
    DataMapperJenisItem* types;
    DataMapperSatuan* units;
};

/** Base of the mappers of lines with an item: the item, and the indexes that it and the document need. */
class ItemLineMapper : public AppLineMapper
{
    Q_OBJECT

public:
    using AppLineMapper::AppLineMapper;

protected:
    void itemColumn(const ItemPartners& partners);
    /** One index for a document's lines, and one that answers how much of an item they hold from itself alone. */
    [[nodiscard]] QStringList lineIndexes(const QString& quantityColumn) const;
};
