#include "kor/business/KorServiceTransaction.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/persistence/KorDatabase.h"

bool inOneTransaction(KorBusinessLogic& service, const QString& operation, const std::function<bool()>& writes,
                      const QString& notBegun, const QStringList& locks)
{
    KorTransaction transaction(locks);
    if (!transaction.isOpen()) {
        service.addError(operation, notBegun.isEmpty() ? KorBusinessLogic::tr("create transaction failed") : notBegun);
        return false;
    }
    if (transaction.isRefused()) {
        service.addError(operation, transaction.failure());
        return false;
    }
    // The transaction's destructor rolls back.
    if (!writes())
        return false;
    const bool committed = transaction.commit();
    if (!committed) {
        service.addError(operation, transaction.failure());
        transaction.rollback();
    }
    return committed;
}
