#include "zavel/commission/DataMapperKomisiAgen.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "zavel/commission/DataMapperKomisiAgenDetail.h"
#include "zavel/service/SalesFilters.h"

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

KorDataMapper* DataMapperKomisiAgen::lineMapper() const { return m_lines; }

KorEntity* DataMapperKomisiAgen::findById(int id)
{
    auto* payment = static_cast<EntityKomisiAgen*>(NumberedDocumentMapper::findById(id));
    if (!payment)
        return nullptr;
    payment->setDetails(m_lines->findByPayment(id));
    if (!m_lines->hasError())
        return payment;
    setError(m_lines->takeError());
    return nullptr;
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
