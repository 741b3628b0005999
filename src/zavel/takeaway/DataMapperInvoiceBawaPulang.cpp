#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

DataMapperInvoiceBawaPulang::DataMapperInvoiceBawaPulang(QObject* parent, DataMapperInvoice* invoices,
                                                         DataMapperBawaPulang* orders)
    : DataMapperInvoiceLink(parent, invoices), m_orders(orders)
{
    setName("invoice bawapulang");
    metaData()->setTableName("invoice_bawa_pulang");
    column("invoice_id", "integer not null", "Invoice.Id");
    reference("bawa_pulang_id", "integer not null", "BawaPulang", orders, "inner");
    addJoin("Invoice", invoices, "inner", "invoice_id", "id");
    reference("member_id", "integer null", "Member", partners().members, "left");
    column("pemesan", "varchar(100)", "Pemesan");
}

KorEntity* DataMapperInvoiceBawaPulang::createEntity() { return new EntityInvoiceBawaPulang(entityParent()); }

QStringList DataMapperInvoiceBawaPulang::indexStatements() const
{
    return {index("invoice_id", "(invoice_id)"), index("bawa_pulang_id", "(bawa_pulang_id)"),
            index("member_id", "(member_id) WHERE member_id IS NOT NULL")};
}

QString DataMapperInvoiceBawaPulang::keyName() const { return Invoice::TakeAway; }

DataMapperInvoiceLink::Messages DataMapperInvoiceBawaPulang::messages() const
{
    // The texts for an insert say "fast food".
    return {tr("error: insert invoice fast food failed"), tr("error: insert invoice fast food detail failed.\r\n"),
            tr("error: insert take away invoice detail failed"),
            tr("error: insert take away invoice detail failed.\r\n")};
}

std::optional<DataMapperInvoiceLink::BilledOrder> DataMapperInvoiceBawaPulang::billedOrder(const KorEntity& link) const
{
    const auto& sale = static_cast<const EntityInvoiceBawaPulang&>(link);
    if (!sale.knownBills())
        return {};
    return BilledOrder{m_orders, "bawa_pulang_id", sale.getBawaPulang()->getId(), *sale.knownBills()};
}

QList<EntityInvoiceBawaPulang*> DataMapperInvoiceBawaPulang::findByOrder(int orderId)
{
    return castAll<EntityInvoiceBawaPulang>(findLinks(linksOf("bawa_pulang_id", orderId)));
}

bool DataMapperInvoiceBawaPulang::loadOrders(const QList<KorEntity*>& links)
{
    QList<int> ids;
    for (const KorEntity* link : links)
        ids.append(static_cast<const EntityInvoiceBawaPulang*>(link)->getBawaPulang()->getId());
    QHash<int, EntityBawaPulang*> byId;
    for (EntityOrder* order : m_orders->findByIds(ids))
        byId.insert(order->getId(), static_cast<EntityBawaPulang*>(order));
    if (m_orders->hasError()) {
        setError(m_orders->takeError());
        return false;
    }
    for (KorEntity* entity : links) {
        auto* link = static_cast<EntityInvoiceBawaPulang*>(entity);
        link->setBawaPulang(byId.value(link->getBawaPulang()->getId(), link->getBawaPulang()));
    }
    return true;
}
