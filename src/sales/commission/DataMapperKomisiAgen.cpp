#include "sales/commission/DataMapperKomisiAgen.h"

#include "kor/entity/KorMetaDataMap.h"
#include "masterdata/agent/DataMapperAgent.h"
#include "masterdata/bank/DataMapperBank.h"
#include "sales/commission/DataMapperKomisiAgenDetail.h"

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
    m_lines = new DataMapperKomisiAgenDetail(this, invoices);
}

KorEntity* DataMapperKomisiAgen::createEntity() { return new EntityKomisiAgen(entityParent()); }

QStringList DataMapperKomisiAgen::indexStatements() const
{
    return {index("payment_date", "(payment_date)"), index("agent_id", "(agent_id)"), index("bank_id", "(bank_id)")};
}

const AppDocumentMapper::Messages& DataMapperKomisiAgen::messages() const
{
    static const Messages texts{tr("error: insert agent commision failed"),
                                tr("error: insert agent commision  detail failed.\r\n"),
                                tr("error: update komisi agen failed"),
                                tr("error: update agent commision detail failed\r\n"),
                                {},
                                {}};
    return texts;
}

void DataMapperKomisiAgen::attachLine(KorEntity* line, int documentId)
{
    static_cast<EntityKomisiAgenDetail*>(line)->setKomisiAgenID(documentId);
}
