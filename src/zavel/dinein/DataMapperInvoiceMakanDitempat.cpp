#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"

DataMapperInvoiceMakanDitempat::DataMapperInvoiceMakanDitempat(QObject* parent, DataMapperInvoice* invoices,
                                                               DataMapperMakanDitempat* orders)
    : DataMapperInvoiceLink(parent, invoices), m_orders(orders)
{
    setName("invoice makan ditempat");
    metaData()->setTableName("invoice_makan_ditempat");
    column("invoice_id", "integer not null", "Invoice.Id");
    column("makan_ditempat_id", "integer not null", "MakanDitempat.Id");
    column("employee_id", "integer null", "Employee.Id");
    column("agent_id", "integer null", "Agent.Id");
    column("due_date", "date null", "DueDate");
    addJoin("MakanDitempat", orders, "inner", "makan_ditempat_id", "id");
    addJoin("Invoice", invoices, "inner", "invoice_id", "id");
    addJoin("Employee", partners().employees, "left", "employee_id", "id");
    addJoin("Agent", partners().agents, "left", "agent_id", "id");
}

KorEntity* DataMapperInvoiceMakanDitempat::createEntity() { return new EntityInvoiceMakanDitempat(entityParent()); }

QStringList DataMapperInvoiceMakanDitempat::indexStatements() const
{
    return {index("invoice", "(invoice_id)"), index("order", "(makan_ditempat_id)"),
            index("agent", "(agent_id, invoice_id) WHERE agent_id IS NOT NULL"),
            index("employee_id", "(employee_id) WHERE employee_id IS NOT NULL")};
}

QString DataMapperInvoiceMakanDitempat::keyName() const { return Invoice::Dine; }

DataMapperInvoiceLink::Messages DataMapperInvoiceMakanDitempat::messages() const
{
    // An update reports its failures with the texts of an insert.
    const QString header = tr("error: insert dine invoice failed ");
    const QString lines = tr("error: insert dine invoice detail failed.\r\n");
    return {header, lines, header, lines};
}

void DataMapperInvoiceMakanDitempat::prepareInvoice(KorEntity* link, Invoice* invoice)
{
    invoice->setEmployee(static_cast<EntityInvoiceMakanDitempat*>(link)->getEmployee());
}

std::optional<DataMapperInvoiceLink::BilledOrder>
DataMapperInvoiceMakanDitempat::billedOrder(const KorEntity& link) const
{
    const auto& sale = static_cast<const EntityInvoiceMakanDitempat&>(link);
    if (!sale.knownBills())
        return {};
    return BilledOrder{m_orders, "makan_ditempat_id", sale.getMakanDitempat()->getId(), *sale.knownBills()};
}

QList<EntityInvoiceMakanDitempat*> DataMapperInvoiceMakanDitempat::findByOrder(int orderId)
{
    return castAll<EntityInvoiceMakanDitempat>(findLinks(linksOf("makan_ditempat_id", orderId)));
}

QList<EntityInvoiceMakanDitempat*> DataMapperInvoiceMakanDitempat::findMoneyOfOrder(int orderId)
{
    return castAll<EntityInvoiceMakanDitempat>(findMany(linksOf("makan_ditempat_id", orderId)));
}

bool DataMapperInvoiceMakanDitempat::loadOrders(const QList<KorEntity*>& links)
{
    QList<int> ids;
    for (KorEntity* link : links) {
        const int id = static_cast<EntityInvoiceMakanDitempat*>(link)->getMakanDitempat()->getId();
        if (!ids.contains(id))
            ids.append(id);
    }
    QHash<int, EntityMakanDitempat*> byId;
    for (EntityOrder* order : m_orders->findByIds(ids))
        byId.insert(order->getId(), static_cast<EntityMakanDitempat*>(order));
    if (m_orders->hasError()) {
        setError(m_orders->takeError());
        return false;
    }
    for (KorEntity* entity : links) {
        auto* link = static_cast<EntityInvoiceMakanDitempat*>(entity);
        link->setMakanDitempat(byId.value(link->getMakanDitempat()->getId(), link->getMakanDitempat()));
    }
    return true;
}
