#include "pos/purchasing/document/StockDocumentService.h"

#include "kor/entity/KorEntity.h"

StockDocumentService::StockDocumentService(const QString& name, AppDocumentMapper* documents,
                                           DataMapperItemHistory* journal, QObject* parent)
    : PurchasingService(name, documents, parent), m_journal(journal)
{}

QString StockDocumentService::unfinished() const { return tr("the rows of its goods on the stock card"); }

bool StockDocumentService::afterSave(const KorEntity& document, Save kind)
{
    QList<ItemMovement> movements;
    const QList<KorEntity*> lines = linesOf(document);
    for (const KorEntity* line : lines)
        movements.append(movementOf(document, *line));
    if (kind == Insert)
        return written(m_journal->addAll(movements), m_journal, "insert");
    bool done = true;
    for (const ItemMovement& movement : qAsConst(movements))
        done = written(m_journal->write(movement), m_journal, "update") && done;
    const QList<KorEntity*> removed = removedLinesOf(document);
    for (const KorEntity* line : removed) {
        const int type = movementOf(document, *line).transType;
        // A line that was never saved has no journal row.
        done = written(!line->isSaved() || m_journal->removeLine(type, line->getId()), m_journal, "update") && done;
    }
    return done;
}
