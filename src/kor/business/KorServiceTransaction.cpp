#include "kor/business/KorServiceTransaction.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/persistence/KorDatabase.h"

bool inOneTransaction(KorBusinessLogic& service, const QString& operation, const std::function<bool()>& writes)
{
    KorTransaction transaction;
    if (!transaction.isOpen()) {
        service.addError(operation, KorBusinessLogic::tr("create transaction failed"));
        return false;
    }
    // Left unfinished, it is rolled back.
    if (!writes())
        return false;
    const bool committed = transaction.commit();
    if (!committed) {
        service.addError(operation, transaction.failure());
        transaction.rollback();
    }
    return committed;
}
