#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/masterdata/item/ItemLineMapper.h"
#include "pos/purchasing/document/PurchasingFilter.h"

/** Mapper of a numbered document of purchasing: how it is found. */
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
    /** Without lines, the latest first. */
    [[nodiscard]] QList<Document*> findAll(const PurchasingFilter& filter)
    {
        return castAll<Document>(this->findMany(conditionsOf(filter, filterColumns())));
    }

protected:
    [[nodiscard]] virtual PurchasingColumns filterColumns() const = 0;
};
