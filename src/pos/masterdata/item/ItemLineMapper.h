#pragma once

#include "app/persistence/AppLineMapper.h"

class DataMapperItem;
class DataMapperJenisItem;
class DataMapperSatuan;

/** The mappers that a line needs to read its item with type and unit. */
struct ItemPartners
{
    DataMapperItem* items;
    DataMapperJenisItem* types;
    DataMapperSatuan* units;
};

/** Base of the mappers of lines with an item: the item column, and the indexes on item and document. */
class ItemLineMapper : public AppLineMapper
{
    Q_OBJECT

public:
    using AppLineMapper::AppLineMapper;

protected:
    void itemColumn(const ItemPartners& partners);
    /** An index for the lines of a document, and one that gives the quantity of an item without reading the table. */
    [[nodiscard]] QStringList lineIndexes(const QString& quantityColumn) const;
};
