#include "zavel/dinein/DataMapperMakanDitempat.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/dinein/DataMapperMakanDitempatDetail.h"
#include "zavel/tables/DataMapperMeja.h"

#include <algorithm>

DataMapperMakanDitempat::DataMapperMakanDitempat(QObject* parent, DataMapperMember* members, DataMapperMeja* tables,
                                                 const ItemPartners& partners)
    : DataMapperOrder(parent), m_tables(tables)
{
    setName("makan ditempat");
    metaData()->setTableName("makan_ditempat");
    column("status", "integer not null", "Status");
    reference("member_id", "integer null", "Member", members, "left");
    reference("meja_id", "integer not null", "Meja", tables, "inner");
    column("pemesan", "varchar(100)", "Pemesan");
    column("tgl", "date not null", "Tgl");
    column("pindah_meja", "varchar(255)", "PindahMeja");
    setLineMapper(new DataMapperMakanDitempatDetail(this, this, partners));
}

KorEntity* DataMapperMakanDitempat::createEntity() { return new EntityMakanDitempat(entityParent()); }

QStringList DataMapperMakanDitempat::indexStatements() const
{
    return {index("open_meja", "(meja_id) WHERE " + openOrders()),
            index("member_id", "(member_id) WHERE member_id IS NOT NULL")};
}

QList<EntityMakanDitempat*> DataMapperMakanDitempat::getMakanDitempatList(int status, const QString& text)
{
    KorConditions conditions;
    // There are no parentheses around the "or" on purpose: the text filters only the last alternative.
    conditions.holds(openOrders() + (status == 0 ? QString() : QString(" or status = %1").arg(status)));
    if (!text.isEmpty())
        conditions.equals({"lower(meja.kode)", "lower(meja.nama)"}, text);
    conditions.ascending("makan_ditempat.id");
    QList<EntityMakanDitempat*> orders;
    for (EntityOrder* order : findOrders(conditions))
        orders.append(static_cast<EntityMakanDitempat*>(order));
    return orders;
}

bool DataMapperMakanDitempat::insertAtFreeTable(EntityMakanDitempat* order)
{
    m_foundTaken = false;
    m_asksForTable = true;
    const bool placed = insert(order);
    m_asksForTable = false;
    return placed;
}

QStringList DataMapperMakanDitempat::locksOfInsert(const KorEntity& order) const
{
    // Locks the table's row: a second waiter waits here and then finds the first one's order.
    const auto& placed = static_cast<const EntityMakanDitempat&>(order);
    return m_asksForTable ? QStringList{m_tables->lockOf(placed.getMeja()->getId())} : QStringList();
}

bool DataMapperMakanDitempat::beforeInsert(KorEntity* order)
{
    if (!m_asksForTable)
        return true;
    const auto* placed = static_cast<const EntityMakanDitempat*>(order);
    // The code is compared with lower(kode) but not lowered itself, so a code with capital letters finds no order.
    const QList<EntityMakanDitempat*> open = getMakanDitempatList(0, placed->getMeja()->getKode());
    m_foundTaken = std::any_of(open.cbegin(), open.cend(), [placed](const EntityMakanDitempat* other) {
        return other->getMeja()->getId() == placed->getMeja()->getId() && other->getId() != placed->getId();
    });
    return !m_foundTaken && !hasError();
}

const AppDocumentMapper::Messages& DataMapperMakanDitempat::messages() const
{
    static const Messages texts{tr("error: insert dine failed"), tr("error: insert dine detail failed.\r\n"),
                                tr("error: update dine failed"), tr("error: update dine detail failed\r\n"),
                                tr("error: delete dine failed"), tr("error: delete dine detail failed\r\n")};
    return texts;
}

QString DataMapperMakanDitempat::statusFailure() const { return tr("error update status failed"); }
