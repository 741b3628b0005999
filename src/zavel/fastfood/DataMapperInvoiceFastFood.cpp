#include "zavel/fastfood/DataMapperInvoiceFastFood.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/fastfood/FastFoodFilter.h"

#include <QDebug>

DataMapperInvoiceFastFood::DataMapperInvoiceFastFood(QObject* parent, DataMapperInvoice* invoices)
    : DataMapperInvoiceLink(parent, invoices)
{
    setName("invoice fastfood");
    metaData()->setTableName("invoice_fast_food");
    reference("invoice_id", "integer not null", "Invoice", invoices, "inner");
    reference("employee_id", "integer null", "Employee", partners().employees, "left");
    reference("agent_id", "integer null", "Agent", partners().agents, "left");
    reference("member_id", "integer null", "Member", partners().members, "left");
    column("pemesan", "varchar(100)", "Pemesan");
}

KorEntity* DataMapperInvoiceFastFood::createEntity() { return new EntityInvoiceFastFood(entityParent()); }

QStringList DataMapperInvoiceFastFood::indexStatements() const
{
    return {index("invoice_id", "(invoice_id)"), index("agent_id", "(agent_id, invoice_id) WHERE agent_id IS NOT NULL"),
            index("employee_id", "(employee_id) WHERE employee_id IS NOT NULL"),
            index("member_id", "(member_id) WHERE member_id IS NOT NULL")};
}

QString DataMapperInvoiceFastFood::keyName() const { return Invoice::FastFood; }

DataMapperInvoiceLink::Messages DataMapperInvoiceFastFood::messages() const
{
    const QString header = tr("error: insert fast food invoice failed");
    return {header, tr("error: insert fast food invoice  detail failed.\r\n"), header,
            tr("error: insert fast food detail invoice  failed.\r\n")};
}

void DataMapperInvoiceFastFood::prepareInvoice(KorEntity* link, Invoice* invoice)
{
    invoice->setEmployee(static_cast<EntityInvoiceFastFood*>(link)->getEmployee());
}

QList<EntityInvoiceFastFood*> DataMapperInvoiceFastFood::getFastFoodList(const FastFoodFilter& filter)
{
    qDebug() << "from date" << filter.from.toString(Qt::ISODate);
    qDebug() << "to date" << filter.to.toString(Qt::ISODate);
    qDebug() << "status id" << filter.status;
    // Also sorted by id, so that within a day the latest sale comes first.
    return castAll<EntityInvoiceFastFood>(findLinks(KorConditions()
                                                        .between("invoice.invoice_date", filter.from, filter.to)
                                                        .only("status", filter.status, 0)
                                                        .only("lower(employee.kode)", filter.employeeCode.toLower())
                                                        .descending("invoice.invoice_date")
                                                        .descending("invoice.id")));
}
