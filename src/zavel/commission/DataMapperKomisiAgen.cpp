#include "zavel/commission/DataMapperKomisiAgen.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/DataMapperKomisiAgenDetail.h"

DataMapperKomisiAgen::DataMapperKomisiAgen(QObject* parent, DataMapperKey* keys, DataMapperAgent* agents,
                                           DataMapperBank* accounts, DataMapperInvoice* invoices)
    : NumberedDocumentMapper(parent, keys)
{
    setName("komisi agen");
    metaData()->setTableName("komisi_agen");
    column("no", "varchar(50) not null", "No");
    reference("agent_id", "integer not null", "Agent", agents, "inner");
    column("payment_date", "date not null", "PaymentDate");
    moneyColumns("grandtotal", "GrandTotal");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("net_due", "NetDue");
    reference("bank_id", "integer null", "Bank", accounts, "left");
    column("noref", "varchar(20)  null", "NoRef");
    column("note", "text null", "Note");
    setLineMapper(new DataMapperKomisiAgenDetail(this, invoices));
}

DataMapperKomisiAgenDetail* DataMapperKomisiAgen::lines() const
{
    return static_cast<DataMapperKomisiAgenDetail*>(lineMapper());
}

QList<EntityKomisiAgen*> DataMapperKomisiAgen::search(const CommissionFilter& filter)
{
    return castAll<EntityKomisiAgen>(findMany(KorConditions()
                                                  .between("payment_date", filter.from, filter.to)
                                                  .only("agent_id", filter.agentId)
                                                  .contains("lower(no)", filter.number)
                                                  .descending("payment_date")
                                                  .descending("komisi_agen.id")));
}

KorEntity* DataMapperKomisiAgen::createEntity() { return new EntityKomisiAgen(entityParent()); }

QStringList DataMapperKomisiAgen::indexStatements() const
{
    return {index("payment_date", "(payment_date)"), index("agent_id", "(agent_id)"), index("bank_id", "(bank_id)")};
}

const AppDocumentMapper::Messages& DataMapperKomisiAgen::messages() const
{
    static const Messages texts{
        tr("error: insert agent commision failed"), tr("error: insert agent commision  detail failed.\r\n"),
        tr("error: update komisi agen failed"), tr("error: update agent commision detail failed\r\n")};
    return texts;
}
