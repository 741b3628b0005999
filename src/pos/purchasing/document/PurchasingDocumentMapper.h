#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/masterdata/item/ItemLineMapper.h"
#include "pos/purchasing/document/PurchasingFilter.h"

/** Mapper of a numbered document of purchasing, on top of the base that knows its lines: how it is found. */
template <class Document, class Base = AppLinedDocumentMapper<Document>>
class PurchasingHeaderMapper : public NumberedDocumentMapper<Document, Base>
{
public:
    using NumberedDocumentMapper<Document, Base>::NumberedDocumentMapper;

    /** Without lines: a save of it leaves the lines alone. */
    [[nodiscard]] Document* findHeader(int id)
    {
        return static_cast<Document*>(NumberedDocumentMapper<Document, Base>::findById(id));
    }
    /** Without lines. */
    [[nodiscard]] Document* findByNo(const QString& no)
    {
        return static_cast<Document*>(
            this->findOne(KorConditions().equals(this->tableName() + ".no", no).ascending(this->tableName() + ".id")));
    }
    /** Without lines, the latest first. */
    [[nodiscard]] QList<Document*> findAll(const PurchasingFilter& filter)
    {
        return castAll<Document>(this->findMany(conditionsOf(filter, filterColumns())));
    }

protected:
    [[nodiscard]] virtual PurchasingColumns filterColumns() const = 0;
};

/** The same for a document whose lines are items of one kind. */
template <class Document, class Line>
class PurchasingDocumentMapper : public PurchasingHeaderMapper<Document>
{
public:
    using PurchasingHeaderMapper<Document>::PurchasingHeaderMapper;

    /** With its lines. */
    KorEntity* findById(int id) override
    {
        Document* document = this->findHeader(id);
        if (!document)
            return nullptr;
        document->setDetails(castAll<Line>(m_lines->findByDocument(id)));
        if (!m_lines->hasError())
            return document;
        this->setError(m_lines->takeError());
        return nullptr;
    }
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_lines; }

protected:
    /** To be called at the end of the constructor. */
    void setLineMapper(ItemLineMapper* lines) { m_lines = lines; }

private:
    ItemLineMapper* m_lines = nullptr;
};
