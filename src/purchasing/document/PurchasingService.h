#pragma once

#include "kor/business/KorBusinessLogic.h"

class AppDocumentMapper;

/** Base of the services of purchasing documents: a document is removed with its lines, all or nothing. */
class PurchasingService : public KorBusinessLogic
{
    Q_OBJECT

public:
    PurchasingService(const QString& name, AppDocumentMapper* documents, QObject* parent);

    bool remove(KorEntity* document) override;
    bool clearTransactions() override;

protected:
    [[nodiscard]] virtual QList<KorEntity*> linesOf(const KorEntity& document) const = 0;
    [[nodiscard]] virtual KorDataMapper* mapperOf(const KorEntity& line) const;
    /** The family's words for a transaction that does not begin; empty for the usual ones. */
    [[nodiscard]] virtual QString notBegunText() const { return {}; }

    [[nodiscard]] AppDocumentMapper* documents() const;
};
