#include "pos/purchasing/document/PurchasingService.h"

#include "app/persistence/AppDocumentMapper.h"
#include "kor/business/KorServiceTransaction.h"

PurchasingService::PurchasingService(const QString& name, AppDocumentMapper* documents, QObject* parent)
    : KorBusinessLogic(name, documents, parent)
{}

AppDocumentMapper* PurchasingService::documents() const { return static_cast<AppDocumentMapper*>(mapper()); }

bool PurchasingService::insert(KorEntity* document) { return save(*document, Insert); }

bool PurchasingService::update(KorEntity* document) { return save(*document, Update); }

bool PurchasingService::save(KorEntity& document, Save kind)
{
    beforeSave(document);
    mapper()->clearError();
    const bool done = kind == Insert ? mapper()->insert(&document) : mapper()->update(&document);
    // A mapper may return true for a save that was rolled back; then it has an error.
    m_stands = done && !mapper()->hasError();
    return written(m_stands, mapper(), kind == Insert ? "insert" : "update") && afterSave(document, kind);
}

bool PurchasingService::remove(KorEntity* document)
{
    const auto removeAll = [this, document] {
        const QList<KorEntity*> lines = linesOf(*document);
        for (KorEntity* line : lines) {
            AppLineMapper* mapper = documents()->mapperOf(line);
            if (!written(mapper->remove(line), mapper, "remove"))
                return false;
        }
        return written(mapper()->remove(document), mapper(), "remove");
    };
    // Lock the document first, as a save does; otherwise the two could deadlock.
    return inOneTransaction(*this, "remove", removeAll, notBegunText(), {mapper()->removalLockOf(document->getId())});
}

bool PurchasingService::clearTransactions() { return clearTables(documents()->lineMappers() << mapper()); }
