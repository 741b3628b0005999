#pragma once

#include "app/persistence/IdKeeper.h"
#include "kor/persistence/KorDatabase.h"

/** One save of a document: what is written stands all together, or the records have the ids that they had before. */
class AppDocumentSave
{
public:
    /** The locks as KorTransaction takes them. */
    explicit AppDocumentSave(const QList<KorEntity*>& written, const QStringList& locks = {})
        : m_ids(written), m_transaction(locks)
    {}

    [[nodiscard]] const KorTransaction& transaction() const { return m_transaction; }
    /** False where it was not done, or the commit failed, whose words the reason then is. */
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
