#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/cash/ledger/EntityCashFlow.h"

struct CashFlowFilter;

/**
 * Manual ledger entries, in the table "cash_flow", and the ledger itself, which has no table: it is one SELECT over all
 * documents. An entry has its account's code without a foreign key. If the account is deleted, the entry stays in its
 * table but is no longer in the ledger.
 */
class DataMapperCashFlow final : public NumberedEntryMapper<EntityCashFlow>
{
    Q_OBJECT

public:
    DataMapperCashFlow(QObject* parent, DataMapperKey* keys);

    [[nodiscard]] QString keyName() const override { return "KK"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The SELECT of every movement of money, without filter; the type texts are in the user's language. */
    [[nodiscard]] QString getCashFlowQuery() const;
    /** The ledger, latest first. Its rows have no id. */
    QList<EntityCashFlow*> search(const CashFlowFilter& filter);
    /** The manual entry with this number; null for a document's number. */
    EntityCashFlow* getByTransNo(const QString& no);
};
