#pragma once

#include "kor/business/KorBusinessLogic.h"

class AppDocumentMapper;

/**
 * Base of the services of purchasing documents. A save is one transaction; further steps (afterSave()) follow it, so a
 * document can be saved although a further step failed. A document and its lines are removed in one transaction.
 */
class PurchasingService : public KorBusinessLogic
{
    Q_OBJECT

public:
    PurchasingService(const QString& name, AppDocumentMapper* documents, QObject* parent);

    /** False also if only a further step failed; then documentStands() is true, because the document is saved. */
    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    [[nodiscard]] bool documentStands() const { return m_stands; }
    /** Runs the further steps again; repeating finished ones is safe. */
    bool finish(const KorEntity& document) { return afterSave(document, Update); }
    /** The text for what has failed, according to the service's errors. */
    [[nodiscard]] virtual QString unfinished() const { return {}; }
    bool remove(KorEntity* document) override;
    bool clearTransactions() override;

protected:
    enum Save { Insert, Update };

    virtual void beforeSave(KorEntity&) {}
    /** The further steps after a save. Errors are kept in the service. */
    virtual bool afterSave(const KorEntity&, Save) { return true; }
    [[nodiscard]] virtual QList<KorEntity*> linesOf(const KorEntity& document) const = 0;
    /** The error text for a transaction that cannot begin; empty for the default text. */
    [[nodiscard]] virtual QString notBegunText() const { return {}; }

    [[nodiscard]] AppDocumentMapper* documents() const;

private:
    bool save(KorEntity& document, Save kind);

    bool m_stands = false;
};
