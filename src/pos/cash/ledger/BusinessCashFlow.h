#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperCashFlow;
class EntityCashFlow;
struct CashFlowFilter;

/** The service of the ledger and its manual entries. Its permission keys start at 1. */
class BusinessCashFlow final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_CASH_FLOW = 1, UPDATE_CASH_FLOW, DELETE_CASH_FLOW };
    Q_ENUM(PERMISSIONS)

    BusinessCashFlow(QObject* parent, DataMapperCashFlow* entries);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

    [[nodiscard]] QList<EntityCashFlow*> search(const CashFlowFilter& filter);
    [[nodiscard]] EntityCashFlow* getByTransNo(const QString& no);

private:
    DataMapperCashFlow* m_entries;
};
