#pragma once

#include "inventory/stock/DataMapperItemHistory.h"
#include "purchasing/document/PurchasingService.h"

/**
 * Base of the services of documents that move stock: when a document is saved, the journal gets a row for each of its
 * lines. The journal follows after the document's own transaction, so that a document may stand whose rows failed.
 */
class StockDocumentService : public PurchasingService
{
    Q_OBJECT

public:
    StockDocumentService(const QString& name, AppDocumentMapper* documents, DataMapperItemHistory* journal,
                         QObject* parent);

    /** Both are false with the errors of the journal too; documentStands() then tells that the document is saved. */
    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    [[nodiscard]] bool documentStands() const { return m_stands; }

protected:
    virtual void beforeSave(KorEntity&) {}
    /** Between the document and its journal rows; a failure does not keep the journal from following. */
    virtual bool afterSave(const KorEntity&) { return true; }
    [[nodiscard]] virtual QList<KorEntity*> removedLinesOf(const KorEntity& document) const = 0;
    [[nodiscard]] virtual ItemMovement movementOf(const KorEntity& document, const KorEntity& line) const = 0;

private:
    bool saved(bool done, const QString& operation);

    DataMapperItemHistory* m_journal;
    bool m_stands = false;
};
