#pragma once

#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/purchasing/document/PurchasingService.h"

/** Base of the services of documents that move stock: every line of a saved document has a row in the journal. */
class StockDocumentService : public PurchasingService
{
    Q_OBJECT

public:
    StockDocumentService(const QString& name, AppDocumentMapper* documents, DataMapperItemHistory* journal,
                         QObject* parent);

    [[nodiscard]] QString unfinished() const override;

protected:
    bool afterSave(const KorEntity& document, Save kind) override;
    [[nodiscard]] virtual QList<KorEntity*> removedLinesOf(const KorEntity& document) const = 0;
    [[nodiscard]] virtual ItemMovement movementOf(const KorEntity& document, const KorEntity& line) const = 0;

private:
    DataMapperItemHistory* m_journal;
};
