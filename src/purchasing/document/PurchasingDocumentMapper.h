#pragma once

#include "app/numbers/NumberedMapper.h"
#include "kor/persistence/KorPaging.h"
#include "masterdata/itemline/ItemLineMapper.h"
#include "purchasing/document/PurchasingFilter.h"

/** Mapper of a numbered document whose lines are items of one kind: how it is found and read with its lines. */
template <class Document, class Line>
class PurchasingDocumentMapper : public NumberedDocumentMapper<Document>
{
public:
    using NumberedDocumentMapper<Document>::NumberedDocumentMapper;

    /** With its lines. */
    KorEntity* findById(int id) override
    {
        Document* document = findHeader(id);
        if (!document)
            return nullptr;
        document->setDetails(castAll<Line>(m_lines->findByDocument(id)));
        if (!m_lines->hasError())
            return document;
        this->setError(m_lines->takeError());
        return nullptr;
    }
    /** Without lines: a save of it leaves the lines alone. */
    [[nodiscard]] Document* findHeader(int id)
    {
        return static_cast<Document*>(NumberedDocumentMapper<Document>::findById(id));
    }
    /** Without lines. */
    [[nodiscard]] Document* findByNo(const QString& no)
    {
        return static_cast<Document*>(this->findOne(
            " where " + this->tableName() + ".no = :no order by " + this->tableName() + ".id", {{":no", no}}));
    }
    /** Without lines, the latest first. */
    [[nodiscard]] QList<Document*> findAll(const PurchasingFilter& filter)
    {
        KorPaging paging;
        narrow(paging, filter, filterColumns());
        return castAll<Document>(this->find(&paging));
    }
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_lines; }

protected:
    /** To be called at the end of the constructor. */
    void setLineMapper(ItemLineMapper* lines) { m_lines = lines; }
    [[nodiscard]] virtual PurchasingColumns filterColumns() const = 0;

private:
    ItemLineMapper* m_lines = nullptr;
};
