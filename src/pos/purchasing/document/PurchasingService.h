#pragma once

#include "kor/business/KorBusinessLogic.h"

class AppDocumentMapper;

/**
 * Base of the services of purchasing documents. A save is one transaction, and what follows from it comes after: a
 * document may stand although something that follows has failed. A document is removed with its lines, all or nothing.
 */
class PurchasingService : public KorBusinessLogic
{
    Q_OBJECT

public:
    PurchasingService(const QString& name, AppDocumentMapper* documents, QObject* parent);

    /** Both are false for what follows too; documentStands() then tells that the document itself is saved. */
    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    [[nodiscard]] bool documentStands() const { return m_stands; }
    /** What follows from a saved document, once more; what is done already stays as it is. */
    bool finish(const KorEntity& document) { return afterSave(document, Update); }
    /** What of it has failed, by the errors that the service holds. */
    [[nodiscard]] virtual QString unfinished() const { return {}; }
    bool remove(KorEntity* document) override;
    bool clearTransactions() override;

protected:
    enum Save { Insert, Update };

    virtual void beforeSave(KorEntity&) {}
    /** What follows from the saved document; a failure is kept in the service. */
    virtual bool afterSave(const KorEntity&, Save) { return true; }
    [[nodiscard]] virtual QList<KorEntity*> linesOf(const KorEntity& document) const = 0;
    /** The family's words for a transaction that does not begin; empty for the usual ones. */
    [[nodiscard]] virtual QString notBegunText() const { return {}; }

    [[nodiscard]] AppDocumentMapper* documents() const;

private:
    bool save(KorEntity& document, Save kind);

    bool m_stands = false;
};
