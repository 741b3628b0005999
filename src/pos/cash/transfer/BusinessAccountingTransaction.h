#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperAccountingTransaction;
class EntityAccountingTransaction;
struct AccountingTransactionFilter;

/** The service of transfers between accounts. */
class BusinessAccountingTransaction final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { CREATE_TRANS, UPDATE_TRANS, DELETE_TRANS };
    Q_ENUM(PERMISSIONS)

    BusinessAccountingTransaction(QObject* parent, DataMapperAccountingTransaction* transfers);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

    [[nodiscard]] QList<EntityAccountingTransaction*> search(const AccountingTransactionFilter& filter);

private:
    DataMapperAccountingTransaction* m_transfers;
};
