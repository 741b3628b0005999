#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/cash/transfer/EntityAccountingTransaction.h"

class DataMapperBank;
class DataMapperUser;
class DataMapperUserGroup;
struct AccountingTransactionFilter;

/** Transfers between accounts, in the table "accounting_trans". */
class DataMapperAccountingTransaction final : public NumberedEntryMapper<EntityAccountingTransaction>
{
    Q_OBJECT

public:
    DataMapperAccountingTransaction(QObject* parent, DataMapperKey* keys, DataMapperBank* accounts,
                                    DataMapperUser* users, DataMapperUserGroup* groups);

    [[nodiscard]] QString keyName() const override { return "TR"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The transfers of a period, latest first. */
    QList<EntityAccountingTransaction*> search(const AccountingTransactionFilter& filter);
};
