#include "sales/receivable/DataMapperPiutang.h"

#include "kor/entity/KorMetaDataMap.h"
#include "masterdata/bank/DataMapperBank.h"
#include "masterdata/member/DataMapperMember.h"
#include "sales/receivable/DataMapperPiutangDetail.h"

DataMapperPiutang::DataMapperPiutang(QObject* parent, DataMapperKey* keys, DataMapperMember* members,
                                     DataMapperBank* accounts, DataMapperInvoice* invoices,
                                     DataMapperEmployee* employees, DataMapperAgent* agents)
    : NumberedDocumentMapper(parent, keys)
{
    setName("piutang");
    metaData()->setTableName("piutang");
    column("payment_type", "integer not null", "PaymentType");
    reference("member_id", "integer not null", "Member", members, "inner");
    column("payment_date", "date not null", "Date");
    column("no", "varchar(50) not null", "No");
    column("check_no", "varchar(50) null", "CheckNo");
    column("note", "text NULL", "Note");
    moneyColumns("grandtotal", "GrandTotal");
    reference("bank_id", "integer null", "Bank", accounts, "left");
    column("noref", "varchar(20)  null", "NoRef");
    m_lines = new DataMapperPiutangDetail(this, invoices, employees, agents, members);
}

KorEntity* DataMapperPiutang::createEntity() { return new EntityPiutang(entityParent()); }

QStringList DataMapperPiutang::indexStatements() const
{
    return {index("payment_date", "(payment_date)"), index("member_id", "(member_id)"), index("bank_id", "(bank_id)")};
}

const AppDocumentMapper::Messages& DataMapperPiutang::messages() const
{
    static const Messages texts{tr("error: insert credit invoice failed"),
                                tr("error: insert credit detail invoice failed.\r\n"),
                                tr("error: update credit invoice failed"),
                                tr("error: update credit invoice failed\r\n"),
                                {},
                                {}};
    return texts;
}

void DataMapperPiutang::attachLine(KorEntity* line, int documentId)
{
    static_cast<EntityPiutangDetail*>(line)->setPiutangId(documentId);
}
