#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/masterdata/item/ItemLineMapper.h"
#include "pos/purchasing/document/PurchasingFilter.h"

/** Base of the mappers of numbered purchasing documents: their search functions. */
template <class Document, class Base = AppLinedDocumentMapper<Document>>
class PurchasingDocumentMapper : public NumberedDocumentMapper<Document, Base>
{
public:
    using NumberedDocumentMapper<Document, Base>::NumberedDocumentMapper;

    /** Without lines. */
    [[nodiscard]] Document* findByNo(const QString& no)
    {
        const QString table = this->tableName() + '.';
        return static_cast<Document*>(this->findOne(KorConditions().equals(table + "no", no).ascending(table + "id")));
    }
    /** Without lines, latest first. */
    [[nodiscard]] QList<Document*> findAll(const PurchasingFilter& filter)
    {
        return castAll<Document>(this->findMany(conditionsOf(filter, filterColumns())));
    }

protected:
    [[nodiscard]] virtual PurchasingColumns filterColumns() const = 0;
};
