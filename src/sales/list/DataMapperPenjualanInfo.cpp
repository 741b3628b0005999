#include "sales/list/DataMapperPenjualanInfo.h"

#include "app/access/DataMapperUser.h"
#include "kor/entity/KorColumnMap.h"
#include "kor/entity/KorMetaDataMap.h"
#include "masterdata/employee/DataMapperEmployee.h"
#include "masterdata/member/DataMapperMember.h"
#include "sales/invoice/DataMapperInvoice.h"
#include "sales/list/EntityPenjualanInfo.h"

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
    info->setUser(static_cast<EntityUser*>(m_partners.users->fromRow(query)));
    info->setMember(static_cast<EntityMember*>(m_partners.members->fromRow(query)));
    info->setTypeName(typeNameOf(query));
    KorEntity* waitress = m_partners.employees->fromRow(query, "mkn_employee");
    if (!waitress)
        waitress = m_partners.employees->fromRow(query, "ff_employee");
    info->setWaitress(static_cast<EntityEmployee*>(waitress));
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
