#pragma once

#include "app/persistence/AppDocumentMapper.h"
#include "kor/entity/KorEntity.h"

/** The lines of a record in memory, and the removed lines, which its next update deletes. All are borrowed. */
template <class Line>
class AppDocumentLines
{
public:
    [[nodiscard]] const QList<Line*>& getDetails() const { return m_details; }
    void setDetails(const QList<Line*>& details) { m_details = details; }
    void addDetail(Line* line) { m_details.append(line); }
    [[nodiscard]] const QList<Line*>& getRemovedDetails() const { return m_removedDetails; }
    void setRemovedDetails(const QList<Line*>& details) { m_removedDetails = details; }
    void removeDetail(Line* line)
    {
        if (m_details.removeOne(line))
            m_removedDetails.append(line);
    }

private:
    QList<Line*> m_details;
    QList<Line*> m_removedDetails;
};

/** The same records by their base class, as mappers need them. */
template <class Line>
[[nodiscard]] QList<KorEntity*> asEntities(const QList<Line*>& lines)
{
    QList<KorEntity*> entities;
    entities.reserve(lines.size());
    for (Line* line : lines)
        entities.append(line);
    return entities;
}

/** Mapper of a record that has AppDocumentLines. */
template <class Document>
class AppLinedDocumentMapper : public AppDocumentMapper
{
public:
    using AppDocumentMapper::AppDocumentMapper;

    /** Without lines. Saving the result does not change the lines. */
    [[nodiscard]] Document* findHeader(int id) { return static_cast<Document*>(AppDataMapper::findById(id)); }

protected:
    [[nodiscard]] QList<KorEntity*> linesOf(KorEntity* document) const override
    {
        return asEntities(static_cast<Document*>(document)->getDetails());
    }
    [[nodiscard]] QList<KorEntity*> removedLinesOf(KorEntity* document) const override
    {
        return asEntities(static_cast<Document*>(document)->getRemovedDetails());
    }
    void readLines(KorEntity* document) override
    {
        using Line =
            std::remove_pointer_t<typename std::decay_t<decltype(std::declval<Document>().getDetails())>::value_type>;
        static_cast<Document*>(document)->setDetails(castAll<Line>(lineMapper()->findByDocument(document->getId())));
    }
};
