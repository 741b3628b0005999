#include "pos/cash/transfer/DataMapperAccountingTransaction.h"

#include "app/access/DataMapperUser.h"
#include "app/access/DataMapperUserGroup.h"
#include "kor/entity/KorMetaDataMap.h"
#include "pos/cash/transfer/AccountingTransactionFilter.h"
#include "pos/masterdata/account/DataMapperBank.h"

DataMapperAccountingTransaction::DataMapperAccountingTransaction(QObject* parent, DataMapperKey* keys,
                                                                 DataMapperBank* accounts, DataMapperUser* users,
                                                                 DataMapperUserGroup* groups)
    : NumberedEntryMapper(parent, keys)
{
    setName("Accounting Transaction");
    metaData()->setTableName("accounting_trans");
    column("trans_no", "varchar(50) not null", "TransNo");
    column("trans_date", "date not null", "Date");
    column("notes", "text NULL", "Notes");
    column("from_account_id", "integer null", "FromAccount.Id");
    column("to_account_id", "integer null", "ToAccount.Id");
    moneyColumns("amount", "Amount");
    addJoin("FromAccount", accounts, "inner", "from_account_id", "id", "from_account");
    addJoin("ToAccount", accounts, "inner", "to_account_id", "id", "to_account");
    // A left join, so that rows without a known user are also listed. It gives no foreign key: "createdby" is no own
    // column.
    addJoin("User", users, "left", "createdby", "id");
    addJoin("Group", groups, "left", "users.user_group_id", "id");
}

KorEntity* DataMapperAccountingTransaction::createEntity() { return new EntityAccountingTransaction(entityParent()); }

QStringList DataMapperAccountingTransaction::indexStatements() const
{
    return {index("trans_date", "(trans_date)"), index("from_account_id", "(from_account_id)"),
            index("to_account_id", "(to_account_id)")};
}

QList<EntityAccountingTransaction*> DataMapperAccountingTransaction::search(const AccountingTransactionFilter& filter)
{
    return castAll<EntityAccountingTransaction>(findMany(KorConditions()
                                                             .between("trans_date", filter.fromDate, filter.toDate)
                                                             .descending("trans_date")
                                                             .descending("accounting_trans.id")));
}
