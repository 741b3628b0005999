#include "purchasing/document/StockDocumentService.h"

#include "app/persistence/AppDocumentMapper.h"
#include "kor/entity/KorEntity.h"

StockDocumentService::StockDocumentService(const QString& name, AppDocumentMapper* documents,
                                           DataMapperItemHistory* journal, QObject* parent)
    : PurchasingService(name, documents, parent), m_journal(journal)
{}

bool StockDocumentService::saved(bool done, const QString& operation)
{
    // A mapper may call a save done that it took back: its error tells.
    m_stands = done && !mapper()->hasError();
    return written(m_stands, mapper(), operation);
}

bool StockDocumentService::insert(KorEntity* document)
{
    beforeSave(*document);
    mapper()->clearError();
    if (!saved(mapper()->insert(document), "insert"))
        return false;
    bool done = afterSave(*document);
    const QList<KorEntity*> lines = linesOf(*document);
    for (const KorEntity* line : lines)
        done = written(m_journal->add(movementOf(*document, *line)), m_journal, "insert") && done;
    return done;
}

bool StockDocumentService::update(KorEntity* document)
{
    beforeSave(*document);
    mapper()->clearError();
    if (!saved(mapper()->update(document), "update"))
        return false;
    bool done = afterSave(*document);
    const QList<KorEntity*> lines = linesOf(*document);
    for (const KorEntity* line : lines)
        done = written(m_journal->write(movementOf(*document, *line)), m_journal, "update") && done;
    const QList<KorEntity*> removed = removedLinesOf(*document);
    for (const KorEntity* line : removed) {
        const int type = movementOf(*document, *line).transType;
        done = written(!line->isSaved() || m_journal->removeLine(type, line->getId()), m_journal, "update") && done;
    }
    return done;
}
