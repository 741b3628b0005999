#pragma once

#include "app/persistence/AppDataMapper.h"

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

/** Base of the mappers of lines with an item: the document's id, the item, and the indexes that both need. */
class ItemLineMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    /** In the order of entry. */
    [[nodiscard]] QList<KorEntity*> findByDocument(int documentId);

protected:
    /** The document's id, held as a number; the join labels the document and gives the foreign key. */
    void documentColumn(const QString& name, const QString& property, KorDataMapper* document);
    void itemColumn(const ItemPartners& partners);
    /** One index for a document's lines, and one that answers how much of an item they hold from itself alone. */
    [[nodiscard]] QStringList lineIndexes(const QString& documentColumn, const QString& quantityColumn) const;

private:
    QString m_documentColumn;
};
