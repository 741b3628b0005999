#include "cash/cashflow/DataMapperCashFlow.h"

#include "kor/entity/KorMetaDataMap.h"

DataMapperCashFlow::DataMapperCashFlow(QObject* parent, DataMapperKey* keys) : NumberedEntryMapper(parent, keys)
{
    setName("cash flow");
    metaData()->setTableName("cash_flow");
    column("trans_date", "date not null", "Date");
    column("notes", "text null", "Notes");
    column("trans_no", "varchar(50) not null", "TransNo");
    column("trans_type", "varchar(50) not NULL", "TransType");
    column("account_code", "varchar(20) not null", "AccountCode");
    moneyColumns("debet", "Debet");
    moneyColumns("credit", "Credit");
}

KorEntity* DataMapperCashFlow::createEntity() { return new EntityCashFlow(entityParent()); }

QStringList DataMapperCashFlow::indexStatements() const
{
    return {index("trans_date", "(trans_date)"), index("no", "(lower(trans_no))")};
}
