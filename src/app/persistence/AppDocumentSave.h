#pragma once

#include "app/persistence/IdKeeper.h"
#include "kor/persistence/KorDatabase.h"

/** The transaction of one document's save. On a rollback the records get their former ids back. */
class AppDocumentSave
{
public:
    /** For the locks see KorTransaction. */
    explicit AppDocumentSave(const QList<KorEntity*>& written, const QStringList& locks = {})
        : m_ids(written), m_transaction(locks)
    {}

    [[nodiscard]] const KorTransaction& transaction() const { return m_transaction; }
    /** Commits if done is true, or else rolls back. False if it rolled back; a failed commit sets the reason. */
    bool end(bool done, QString* reason)
    {
        if (done && m_transaction.commit())
            return true;
        if (done)
            *reason = m_transaction.failure();
        m_transaction.rollback();
        m_ids.restore();
        return false;
    }

private:
    IdKeeper m_ids;
    KorTransaction m_transaction;
};
