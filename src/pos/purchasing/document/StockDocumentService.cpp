#include "pos/purchasing/document/StockDocumentService.h"

#include "kor/entity/KorEntity.h"

StockDocumentService::StockDocumentService(const QString& name, AppDocumentMapper* documents,
                                           DataMapperItemHistory* journal, QObject* parent)
    : PurchasingService(name, documents, parent), m_journal(journal)
{}

QString StockDocumentService::unfinished() const { return tr("the rows of its goods on the stock card"); }

bool StockDocumentService::afterSave(const KorEntity& document, Save kind)
{
    bool done = true;
    const QList<KorEntity*> lines = linesOf(document);
    for (const KorEntity* line : lines) {
        const ItemMovement movement = movementOf(document, *line);
        const bool kept = kind == Insert ? m_journal->add(movement) : m_journal->write(movement);
        done = written(kept, m_journal, kind == Insert ? "insert" : "update") && done;
    }
    if (kind == Insert)
        return done;
    const QList<KorEntity*> removed = removedLinesOf(document);
    for (const KorEntity* line : removed) {
        const int type = movementOf(document, *line).transType;
        // A line that was never saved has left nothing behind.
        done = written(!line->isSaved() || m_journal->removeLine(type, line->getId()), m_journal, "update") && done;
    }
    return done;
}
