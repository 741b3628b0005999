#include "zavel/list/DataMapperPenjualanInfo.h"

#include "app/access/DataMapperUser.h"
#include "kor/entity/KorColumnMap.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/service/SalesFilters.h"

#include <QScopedValueRollback>

namespace
{
/** One condition over several columns, each compared with the value; the closing part is always true. */
void addAnyOf(KorPaging& paging, const QString& opening, const QStringList& conditions, const QString& value)
{
    for (int i = 0; i < conditions.size(); ++i)
        paging.addFilter((i == 0 ? opening + '(' : QString(" or ")) + conditions.at(i) + ' ', value);
    paging.addFilter(") and 1=", "1");
}

QString containing(const QString& text) { return '%' + text.toLower() + '%'; }
} // namespace

DataMapperPenjualanInfo::DataMapperPenjualanInfo(QObject* parent, Partners partners)
    : AppDataMapper(parent), m_partners(partners)
{
    setName("penjualan info");
    metaData()->setTableName(partners.invoices->tableName());
    for (const KorColumnMap* invoiceColumn : partners.invoices->metaData()->columns())
        column(invoiceColumn->columnName(), invoiceColumn->sqlType(), invoiceColumn->propertyPath());
    addJoin("User", partners.users, "inner", "createdby", "id");
    addJoin("InvoiceMakanDitempat", partners.dineInvoices, "left", "id", "invoice_id");
    addJoin("InvoiceFastFood", partners.fastFoodInvoices, "left", "id", "invoice_id");
    addJoin("InvoiceBawaPulang", partners.takeAwayInvoices, "left", "id", "invoice_id");
    addJoin("Member", partners.members, "left", "member_id", "id");
    addJoin("MakanDitempat", partners.dineOrders, "left", "invoice_makan_ditempat.makan_ditempat_id", "id");
    addJoin("Employee", partners.employees, "left", "invoice_makan_ditempat.employee_id", "id", "mkn_employee");
    addJoin("Employee", partners.employees, "left", "invoice_fast_food.employee_id", "id", "ff_employee");
}

KorEntity* DataMapperPenjualanInfo::createEntity() { return new EntityPenjualanInfo(entityParent()); }

KorEntity* DataMapperPenjualanInfo::fillFromRow(KorQuery& query, KorEntity* entity)
{
    auto* info = static_cast<EntityPenjualanInfo*>(entity);
    auto* invoice = static_cast<Invoice*>(m_partners.invoices->fromRow(query));
    info->setInvoice(invoice);
    info->setPemesan(invoice->getPemesan());
    info->setGrandTotal(invoice->getGrandTotal());
    info->setAmountPaid(invoice->getAmountPaid());
    info->setNetDue(invoice->getNetDue());
    info->setOtherPayment(invoice->getOtherPayment());
    info->setUser(static_cast<EntityUser*>(partner(query, m_partners.users, m_partners.users->tableName())));
    info->setMember(static_cast<EntityMember*>(partner(query, m_partners.members, m_partners.members->tableName())));
    info->setTypeName(typeNameOf(query));
    KorEntity* waitress = partner(query, m_partners.employees, "mkn_employee");
    if (!waitress)
        waitress = partner(query, m_partners.employees, "ff_employee");
    info->setWaitress(static_cast<EntityEmployee*>(waitress));
    for (const KorDataMapper* link : {m_partners.dineInvoices, m_partners.fastFoodInvoices}) {
        const QVariant agent = query.field(aliasOf(link->tableName(), "agent_id"));
        if (!agent.isNull())
            info->setAgentId(agent.toInt());
    }
    return info;
}

KorEntity* DataMapperPenjualanInfo::partner(KorQuery& query, KorDataMapper* mapper, const QString& alias)
{
    const int id = query.value(query.plan(*mapper, alias).id).toInt();
    if (!m_known || id == 0)
        return mapper->fromRow(query, alias);
    KorEntity*& known = (*m_known)[mapper][id];
    if (!known)
        known = mapper->fromRow(query, alias);
    return known;
}

QString DataMapperPenjualanInfo::typeNameOf(KorQuery& query) const
{
    const auto matched = [&query](const KorDataMapper* link) {
        return !query.field(aliasOf(link->tableName(), "id")).isNull();
    };
    if (matched(m_partners.dineInvoices))
        return tr("Dine");
    if (matched(m_partners.fastFoodInvoices))
        return tr("Fast Food");
    return matched(m_partners.takeAwayInvoices) ? tr("Take Away Food") : QString();
}

// --- searching -----------------------------------------------------------------------------------------------------

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::search(const SalesFilter& filter)
{
    KorPaging paging;
    paging.addFilter("invoice_date >= ", filter.from.toString(Qt::ISODate));
    paging.addFilter(" and invoice_date <= ", filter.to.toString(Qt::ISODate));
    if (filter.status == SalesFilter::OpenInvoices)
        paging.addFilter(" and invoice.status <> ", QString::number(Invoice::FULL_PAID));
    else if (filter.status != 0)
        paging.addFilter(" and invoice.status = ", QString::number(filter.status));
    if (!filter.invoiceNo.isEmpty())
        paging.addFilter(" and lower(invoice.no) like ", containing(filter.invoiceNo));
    if (filter.tableId != KorNoValue)
        paging.addFilter(" and makan_ditempat.meja_id = ", QString::number(filter.tableId));
    if (filter.memberId != KorNoValue)
        addAnyOf(paging, " and ",
                 {"makan_ditempat.member_id =", "invoice_bawa_pulang.member_id =", "invoice_fast_food.member_id ="},
                 QString::number(filter.memberId));
    if (filter.employeeId != KorNoValue)
        addAnyOf(paging, " and ", {"invoice_makan_ditempat.employee_id =", "invoice_fast_food.employee_id ="},
                 QString::number(filter.employeeId));
    if (filter.agentId != KorNoValue)
        addAnyOf(paging, " and ", {"invoice_makan_ditempat.agent_id =", "invoice_fast_food.agent_id ="},
                 QString::number(filter.agentId));
    // A sale for cash is not told apart: every sale may have been paid in part with it.
    if (filter.payment == SalesFilter::OtherPayment)
        addAnyOf(paging, " and ", {"invoice.other_payment_amount <>"}, "0");
    if (!filter.guest.isEmpty())
        addAnyOf(paging, " and ", {"lower(invoice.pemesan) like"}, containing(filter.guest));
    return latestFirst(paging);
}

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::findPendingOfAgent(int agentId)
{
    KorPaging paging;
    paging.addFilter("(invoice_makan_ditempat.agent_id = ", QString::number(agentId));
    paging.addFilter(" or invoice_fast_food.agent_id = ", QString::number(agentId));
    paging.addFilter(") and invoice.id not in (select invoice_id from komisi_agen_detail) and 1=", "1");
    return latestFirst(paging);
}

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::latestFirst(KorPaging& paging)
{
    paging.addSort("invoice_date", "desc");
    // Within a day as well, so that a list read again has its rows where they were.
    paging.addSort(", invoice.id", "desc");
    Known known;
    const QScopedValueRollback<Known*> whileReading(m_known, &known);
    return castAll<EntityPenjualanInfo>(find(&paging));
}
