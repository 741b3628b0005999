#include "zavel/list/TabDaftarPenjualan.h"

#include "app/context/AccessCheck.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "pos/invoice/IInvoice.h"
#include "pos/invoice/Invoice.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "pos/masterdata/member/MemberTextBox.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/fastfood/DialogFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/list/TableModelDaftarPenjualan.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/TableTextBox.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

namespace
{
constexpr char businessName[] = "Sales";
constexpr int filtersPerRow = 3;
} // namespace

TabDaftarPenjualan::TabDaftarPenjualan(QWidget* parent)
    : AppListTab({tr("Customer Payments"), "tblPenjualan", businessName}, filtersPerRow, parent)
{
    makeFilters();
    makeButtons();
    refresh();
}

void TabDaftarPenjualan::makeFilters()
{
    m_from = filters()->addDate("dateFrom", tr("From Date :"));
    m_no = filters()->addText("txtInvNo", tr("Invoice No. :"));
    m_status = filters()->addChoice("ddlStatus", tr("Status :"),
                                    {{tr("All"), 0},
                                     {tr("Fully Paid"), Invoice::FULL_PAID},
                                     {tr("Partially Paid"), Invoice::PARTIALLY_PAID},
                                     {tr("Unpaid"), Invoice::UNPAID}});
    m_to = filters()->addDate("dateTo", tr("To Date :"));
    m_guest = filters()->addText("txtName", tr("Guest :"));
    m_payment = filters()->addChoice("ddlPayment", tr("Payment :"),
                                     {{tr("All"), SalesFilter::AnyPayment},
                                      {tr("Cash"), SalesFilter::CashPayment},
                                      {tr("Other"), SalesFilter::OtherPayment}});
    m_table = filters()->addText("txtTable", tr("Table :"));
    m_member = filters()->addText("txtMember", tr("Member :"));
    m_employee = filters()->addText("txtEmployee", tr("Waitress :"));
    m_agent = filters()->addText("txtAgent", tr("Agent :"));

    m_tables = new RecordField<EntityMeja>(new TableTextBox(m_table, service<BusinessMeja>("Table")));
    m_members = new RecordField<EntityMember>(new MemberTextBox(m_member, service<BusinessMember>("Member")));
    m_employees =
        new RecordField<EntityEmployee>(new EmployeeTextBox(m_employee, service<BusinessEmployee>("Employee")));
    m_agents = new RecordField<EntityAgent>(new AgentTextBox(m_agent, service<BusinessAgent>("Agent")));
}

void TabDaftarPenjualan::makeButtons()
{
    // A sale is created in its payment form, never here.
    button("btnAdd")->setEnabled(false);
    button("btnAdd")->hide();
    auto* reset = new QPushButton(QIcon(":/icons/reset.png"), tr("Reset"), this);
    reset->setObjectName("btnReset");
    reset->setToolTip(tr("Empty the filters"));
    connect(reset, &QPushButton::clicked, this, &TabDaftarPenjualan::on_btnReset_clicked);
    auto* column = new QVBoxLayout;
    column->addWidget(button("btnSearch"));
    column->addWidget(reset);
    filterLayout()->addLayout(column);
    filterLayout()->setAlignment(column, Qt::AlignTop);
    setTabOrder(button("btnSearch"), reset);
}

void TabDaftarPenjualan::on_btnReset_clicked()
{
    for (QLineEdit* box : {m_no, m_table, m_agent, m_member, m_guest, m_employee})
        box->clear();
    for (QComboBox* box : {m_status, m_payment})
        box->setCurrentIndex(0);
    for (QDateEdit* box : {m_from, m_to})
        box->setDate(QDate::currentDate());
    m_no->setFocus();
}

// --- the list ------------------------------------------------------------------------------------------------------

SalesFilter TabDaftarPenjualan::chosen() const
{
    SalesFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.status = m_status->currentData().toInt();
    filter.payment = m_payment->currentData().toInt();
    filter.invoiceNo = m_no->text().trimmed();
    filter.guest = m_guest->text().trimmed();
    filter.tableId = m_tables->filterId(business());
    filter.memberId = m_members->filterId(business());
    filter.employeeId = m_employees->filterId(business());
    filter.agentId = m_agents->filterId(business());
    return filter;
}

std::shared_ptr<FoundRows> TabDaftarPenjualan::openRows()
{
    return businessAs<BusinessPenjualan>()->openSales(chosen());
}

KorEntityModel* TabDaftarPenjualan::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelDaftarPenjualan(rows, this);
}

void TabDaftarPenjualan::modelApplied()
{
    // Twelve columns: texts get less width than amounts, which must not be cut off.
    using Model = TableModelDaftarPenjualan;
    for (const auto& width :
         {std::pair(Model::Type, 134), std::pair(Model::User, 96), std::pair(Model::MemberCode, 152),
          std::pair(Model::Guest, 168), std::pair(Model::Waitress, 112)})
        setColumnWidth(grid(), width.first, width.second);
}

// --- one sale ------------------------------------------------------------------------------------------------------

int TabDaftarPenjualan::editKey() const { return BusinessPenjualan::SAVE_INVOICE; }

std::unique_ptr<KorDialog> TabDaftarPenjualan::createDialog() { return nullptr; }

int TabDaftarPenjualan::deleteKey() const { return BusinessPenjualan::DELETE_SALES; }

KorEntity* TabDaftarPenjualan::readEntity(int id) { return model()->find(id); }

bool TabDaftarPenjualan::editEntity(KorEntity* sale)
{
    // Changing a sale needs another right than taking a payment.
    if (!hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN, sale))
        return true;
    const Invoice& invoice = *static_cast<EntityPenjualanInfo*>(sale)->getInvoice();
    if (invoice.getInvoiceType() == Invoice::FastFood)
        return editFastFood(invoice.getId());
    auto* sales = businessAs<BusinessPenjualan>();
    if (invoice.getInvoiceType() == Invoice::TakeAway)
        editOrder<DialogBayarBawaPulang>(sales->findBawaPulangByInvoiceId(invoice.getId()), invoice.getId());
    else
        editOrder<DialogBayarMakanDitempat>(sales->findMakanDitempatByInvoiceId(invoice.getId()), invoice.getId());
    return true;
}

bool TabDaftarPenjualan::editFastFood(int invoiceId)
{
    auto* found = businessAs<BusinessPenjualan>()->findFastFoodByInvoiceId(invoiceId);
    if (!found) {
        tellNotFound(notFoundText(invoiceId));
        return true;
    }
    DialogFastFood dialog(this);
    dialog.setEntity(found);
    return runDialog(dialog, false);
}

template <class Form>
void TabDaftarPenjualan::editOrder(KorEntity* sale, int invoiceId)
{
    if (!sale) {
        tellNotFound(notFoundText(invoiceId));
        return;
    }
    Form form(this);
    form.setEntity(sale);
    form.exec();
}

bool TabDaftarPenjualan::updateEntity(KorEntity* sale)
{
    return businessAs<BusinessPenjualan>()->updateInvoice(dynamic_cast<IInvoice*>(sale));
}

bool TabDaftarPenjualan::removeEntity(KorEntity* sale)
{
    return businessAs<BusinessPenjualan>()->deleteSales(static_cast<EntityPenjualanInfo*>(sale)->getInvoice()) &&
           !business()->hasError();
}

QString TabDaftarPenjualan::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete this sales invoice: %1 ?")
        .arg(static_cast<const EntityPenjualanInfo*>(entity)->getInvoice()->getInvoiceNo());
}
