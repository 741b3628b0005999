#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/cash/ledger/EntityCashFlow.h"

struct CashFlowFilter;

/**
 * Ledger entries made by hand, in the table "cash_flow", and the ledger itself, which has no table: it is one
 * statement over the documents. An entry's account is a code without a foreign key: an entry outlives its account and
 * only leaves the ledger with it.
 */
class DataMapperCashFlow final : public NumberedEntryMapper<EntityCashFlow>
{
    Q_OBJECT

public:
    DataMapperCashFlow(QObject* parent, DataMapperKey* keys);

    [[nodiscard]] QString keyName() const override { return "KK"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** Every movement of money, without a condition on the whole; it names its types in the user's language. */
    [[nodiscard]] QString getCashFlowQuery() const;
    /** The ledger, latest first. Its rows are no records: they have no id. */
    QList<EntityCashFlow*> search(const CashFlowFilter& filter);
    /** The entry made by hand that has this number; a document's number finds none. */
    EntityCashFlow* getByTransNo(const QString& no);
};
