#pragma once

#include "app/numbers/NumberedMapper.h"
#include "cash/cashflow/EntityCashFlow.h"

/**
 * Ledger entries made by hand, in the table "cash_flow". Their account is a code without a foreign key: an entry
 * outlives its account and only leaves the ledger with it.
 */
class DataMapperCashFlow final : public NumberedEntryMapper<EntityCashFlow>
{
    Q_OBJECT

public:
    DataMapperCashFlow(QObject* parent, DataMapperKey* keys);

    [[nodiscard]] QString keyName() const override { return "KK"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
