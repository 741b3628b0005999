#include "pos/masterdata/agent/DataMapperAgent.h"

#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgentMigration11.h"
#include "pos/masterdata/agent/EntityAgent.h"

DataMapperAgent::DataMapperAgent(QObject* parent, DataMapperBank* bankMapper) : ContactMapper(parent)
{
    contactColumns("agent", "varchar(255) not null");
    payeeColumns(bankMapper, "varchar(200)  null", "varchar(500)  null");
    column("commision_perc", "numeric not NULL", "CommisionPerc");
}

KorEntity* DataMapperAgent::createEntity() { return new EntityAgent(entityParent()); }

QList<KorMigration*> DataMapperAgent::migrations()
{
    return {new DataMapperAgentMigration11({widenCodeStatement(), uniqueCodeStatement()})};
}

QStringList DataMapperAgent::indexStatements() const { return {index("bank_id", "(bank_id)")}; }
