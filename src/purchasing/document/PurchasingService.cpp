#include "purchasing/document/PurchasingService.h"

#include "app/persistence/AppDocumentMapper.h"
#include "kor/business/KorServiceTransaction.h"

PurchasingService::PurchasingService(const QString& name, AppDocumentMapper* documents, QObject* parent)
    : KorBusinessLogic(name, documents, parent)
{}

AppDocumentMapper* PurchasingService::documents() const { return static_cast<AppDocumentMapper*>(mapper()); }

KorDataMapper* PurchasingService::mapperOf(const KorEntity&) const { return documents()->lineMapper(); }

bool PurchasingService::remove(KorEntity* document)
{
    const auto removeAll = [this, document] {
        const QList<KorEntity*> lines = linesOf(*document);
        for (KorEntity* line : lines) {
            if (!written(mapperOf(*line)->remove(line), mapperOf(*line), "remove"))
                return false;
        }
        return written(mapper()->remove(document), mapper(), "remove");
    };
    return inOneTransaction(*this, "remove", removeAll, notBegunText());
}

bool PurchasingService::clearTransactions() { return clearTables(documents()->lineMappers() << mapper()); }
