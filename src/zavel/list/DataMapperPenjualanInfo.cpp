#include "zavel/list/DataMapperPenjualanInfo.h"

#include "app/access/DataMapperUser.h"
#include "kor/entity/KorColumnMap.h"
#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/SaleIds.h"
#include "zavel/list/SalesFilter.h"

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
    info->setUser(static_cast<EntityUser*>(query.partner(*m_partners.users, m_partners.users->tableName())));
    info->setMember(static_cast<EntityMember*>(query.partner(*m_partners.members, m_partners.members->tableName())));
    info->setTypeName(typeNameOf(query));
    KorEntity* waitress = query.partner(*m_partners.employees, "mkn_employee");
    if (!waitress)
        waitress = query.partner(*m_partners.employees, "ff_employee");
    info->setWaitress(static_cast<EntityEmployee*>(waitress));
    for (const KorDataMapper* link : {m_partners.dineInvoices, m_partners.fastFoodInvoices}) {
        const QVariant agent = query.field(aliasOf(link->tableName(), "agent_id"));
        if (!agent.isNull())
            info->setAgentId(agent.toInt());
    }
    return info;
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

KorConditions DataMapperPenjualanInfo::conditionsOf(const SalesFilter& filter)
{
    KorConditions conditions;
    conditions.between("invoice_date", filter.from, filter.to)
        .contains("lower(invoice.no)", filter.invoiceNo)
        .contains("lower(invoice.pemesan)", filter.guest)
        .only("makan_ditempat.meja_id", filter.tableId)
        .only({"makan_ditempat.member_id", "invoice_bawa_pulang.member_id", "invoice_fast_food.member_id"},
              filter.memberId)
        .only({"invoice_makan_ditempat.employee_id", "invoice_fast_food.employee_id"}, filter.employeeId)
        .only({"invoice_makan_ditempat.agent_id", "invoice_fast_food.agent_id"}, filter.agentId);
    if (filter.status == SalesFilter::OpenInvoices)
        conditions.differs("invoice.status", Invoice::FULL_PAID);
    else
        conditions.only("invoice.status", filter.status, 0);
    // Cash payments are not filtered: every sale may have been paid partly in cash.
    if (filter.payment == SalesFilter::OtherPayment)
        conditions.differs("invoice.other_payment_amount", 0);
    const bool isOpen = filter.status != 0 && filter.status != Invoice::FULL_PAID;
    // A member is picked with two statements: it is not asked first whether the open ones are few.
    if (isOpen && filter.memberId != KorNoValue)
        conditions.among("invoice.id", SaleIds::open());
    else
        startWith(conditions, "invoice.id", idsOf(filter));
    return conditions;
}

QStringList DataMapperPenjualanInfo::idsOf(const SalesFilter& filter)
{
    QStringList ids;
    if (filter.status != 0 && filter.status != Invoice::FULL_PAID)
        ids.append(SaleIds::open());
    if (filter.memberId != KorNoValue)
        ids.append(SaleIds::ofMember(filter.memberId));
    if (filter.agentId != KorNoValue)
        ids.append(SaleIds::ofAgent(filter.agentId));
    if (filter.employeeId != KorNoValue)
        ids.append(SaleIds::ofWaitress(filter.employeeId));
    return ids;
}

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::search(const SalesFilter& filter)
{
    KorConditions conditions = conditionsOf(filter);
    return latestFirst(conditions);
}

QString DataMapperPenjualanInfo::listStatement() const
{
    const QStringList sale{"createdby",
                           "version",
                           "invoice_date",
                           "no",
                           "status",
                           "invoice_type",
                           "pemesan",
                           "grandtotal_currency",
                           "grandtotal_amount",
                           "amount_paid_currency",
                           "amount_paid_amount",
                           "net_due_currency",
                           "net_due_amount",
                           "other_payment_currency",
                           "other_payment_amount"};
    return "select " +
           QStringList{columnList(tableName(), sale),
                       columnList(m_partners.users->tableName(), {"username"}),
                       columnList(m_partners.dineInvoices->tableName(), {"agent_id"}),
                       columnList(m_partners.fastFoodInvoices->tableName(), {"agent_id"}),
                       columnList(m_partners.takeAwayInvoices->tableName(), {}),
                       columnList(m_partners.members->tableName(), {"kode"}),
                       columnList("mkn_employee", {"nama"}),
                       columnList("ff_employee", {"nama"})}
               .join(", ") +
           " from " + tableName() + joinClauses();
}

std::unique_ptr<KorQuery> DataMapperPenjualanInfo::readList(const SalesFilter& filter, const FoundRows::Place& behind,
                                                            int atMost)
{
    KorConditions conditions = conditionsOf(filter);
    return findRows(listStatement(), FoundRows::behind(conditions, tableName(), "invoice_date", behind, atMost));
}

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::findPendingOfAgent(int agentId)
{
    KorConditions conditions;
    conditions.equals({"invoice_makan_ditempat.agent_id", "invoice_fast_food.agent_id"}, agentId)
        .among("invoice.id", SaleIds::pending(SaleIds::ofAgent(agentId)));
    return latestFirst(conditions);
}

QList<EntityPenjualanInfo*> DataMapperPenjualanInfo::latestFirst(KorConditions& conditions)
{
    // Also sorted by id, so that rows of one day keep their order when the list is read again.
    conditions.descending("invoice_date").descending("invoice.id");
    return castAll<EntityPenjualanInfo>(findMany(conditions));
}
