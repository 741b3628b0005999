#include "zavel/receivable/DataMapperPiutang.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/receivable/DataMapperPiutangDetail.h"
#include "zavel/receivable/ReceivableFilter.h"

#include <QDebug>

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
    setLineMapper(new DataMapperPiutangDetail(this, invoices, employees, agents, members));
}

DataMapperPiutangDetail* DataMapperPiutang::lines() const
{
    return static_cast<DataMapperPiutangDetail*>(lineMapper());
}

QList<EntityPiutang*> DataMapperPiutang::search(const ReceivableFilter& filter)
{
    qDebug() << "from date" << filter.from << "to date" << filter.to << "payment id" << filter.paymentType << "memberId"
             << filter.memberId;
    return castAll<EntityPiutang>(findMany(KorConditions()
                                               .between("payment_date", filter.from, filter.to)
                                               .only("payment_type", filter.paymentType, 0)
                                               .only("member.id", filter.memberId)
                                               .descending("payment_date")
                                               .descending("piutang.id")));
}

KorEntity* DataMapperPiutang::createEntity() { return new EntityPiutang(entityParent()); }

QStringList DataMapperPiutang::indexStatements() const
{
    return {index("payment_date", "(payment_date)"), index("member_id", "(member_id)"), index("bank_id", "(bank_id)")};
}

const AppDocumentMapper::Messages& DataMapperPiutang::messages() const
{
    static const Messages texts{
        tr("error: insert credit invoice failed"), tr("error: insert credit detail invoice failed.\r\n"),
        tr("error: update credit invoice failed"), tr("error: update credit invoice failed\r\n")};
    return texts;
}
