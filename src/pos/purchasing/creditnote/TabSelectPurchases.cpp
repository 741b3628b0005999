#include "pos/purchasing/creditnote/TabSelectPurchases.h"

#include "app/widgets/AppFilterBar.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/purchasing/creditnote/TableModelSelectPurchases.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchase/PaidStatus.h"

#include <QComboBox>
#include <QLineEdit>

namespace
{
constexpr int choicesInRow = 3;
} // namespace

TabSelectPurchases::TabSelectPurchases(const EntitySupplier* supplier, QWidget* parent)
    : SelectDocumentTab("tblPurchases", service<BusinessPurchases>("Purchases"), parent), m_supplier(supplier)
{
    auto* filters = new AppFilterBar(choicesInRow, this);
    AppFilterBar::Rows states{{tr("All"), 0}};
    for (int status : {EntityAcquisition::FULL_PAID, EntityAcquisition::PARTIALLY_PAID, EntityAcquisition::UNPAID})
        states.append({paidStatusText(status), status});
    m_status = filters->addChoice("ddlStatus", tr("Status :"), states);
    m_text = filters->addText("txtFilter", tr("Search :"));
    m_field = filters->addChoice(
        "ddlFilter", tr("In :"),
        {{tr("Purchase No."), PurchasingFilter::DocumentNo}, {tr("Invoice No."), PurchasingFilter::OtherNo}});
    addFilters(filters);
    refresh();
}

QList<KorEntity*> TabSelectPurchases::readRows()
{
    PurchasingFilter filter;
    filter.from = QDate(1900, 1, 1);
    filter.to = QDate(9999, 12, 31);
    filter.kind = m_status->currentData().toInt();
    filter.supplierCode = m_supplier->getKode();
    filter.field = static_cast<PurchasingFilter::Field>(m_field->currentData().toInt());
    filter.text = m_text->text().trimmed();
    return asEntities(service<BusinessPurchases>("Purchases")->findAll(filter));
}

KorEntityModel* TabSelectPurchases::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelSelectPurchases(rows, this);
}
