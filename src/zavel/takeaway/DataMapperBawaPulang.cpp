#include "zavel/takeaway/DataMapperBawaPulang.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/takeaway/DataMapperBawaPulangDetail.h"

DataMapperBawaPulang::DataMapperBawaPulang(QObject* parent, DataMapperMember* members, ItemPartners partners)
    : DataMapperOrder(parent)
{
    setName("bawa pulang");
    metaData()->setTableName("bawa_pulang");
    column("status", "integer not null", "Status");
    reference("member_id", "integer null", "Member", members, "left");
    column("pemesan", "varchar(100)", "Pemesan");
    column("tgl", "date not null", "Tgl");
    setLineMapper(new DataMapperBawaPulangDetail(this, this, partners));
}

KorEntity* DataMapperBawaPulang::createEntity() { return new EntityBawaPulang(entityParent()); }

QStringList DataMapperBawaPulang::indexStatements() const
{
    return {index("open", "(id) WHERE " + openOrders()), index("member_id", "(member_id) WHERE member_id IS NOT NULL")};
}

QList<EntityBawaPulang*> DataMapperBawaPulang::getBawaPulangList(int status)
{
    KorConditions conditions;
    if (status == 0)
        conditions.holds(openOrders());
    else
        conditions.equals("status", status);
    conditions.ascending("bawa_pulang.id");
    QList<EntityBawaPulang*> orders;
    for (EntityOrder* one : findOrders(conditions))
        orders.append(static_cast<EntityBawaPulang*>(one));
    return orders;
}

const AppDocumentMapper::Messages& DataMapperBawaPulang::messages() const
{
    // Orders and their lines have the same texts.
    static const Messages texts{
        tr("error: insert take away food detail failed"), tr("error: insert take away food detail failed.\r\n"),
        tr("error: update take away food detail failed"), tr("error: update take away food detail failed\r\n"),
        tr("error: delete take away food detail failed"), tr("error: delete take away food detail failed\r\n")};
    return texts;
}

QString DataMapperBawaPulang::statusFailure() const { return tr("error update status"); }
