#include "zavel/commission/TabAllKomisiAgen.h"

#include "app/context/AccessCheck.h"
#include "app/persistence/FoundRows.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/DialogKomisiAgen.h"
#include "zavel/commission/EntityAllKomisiAgen.h"
#include "zavel/commission/EntityKomisiAgen.h"
#include "zavel/commission/TableModelAllKomisiAgen.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QComboBox>
#include <QDateEdit>
#include <QMessageBox>
#include <QPushButton>

namespace
{
constexpr char businessName[] = "Sales";

EntityKomisiAgen* payment(KorEntity* entity) { return static_cast<EntityKomisiAgen*>(entity); }
} // namespace

TabAllKomisiAgen::TabAllKomisiAgen(QWidget* parent)
    : AppListTab({tr("Agent Commissions"), "tblAllKomisiAgen", businessName}, 4, parent)
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), today.addDays(1 - today.day()));
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    m_status = filters()->addChoice("ddlStatus", tr("Status :"),
                                    {{tr("All"), 0},
                                     {tr("Fully Paid"), EntityAllKomisiAgen::FULL_PAID},
                                     {tr("Unpaid"), EntityAllKomisiAgen::UNPAID}});
    QLineEdit* agent = filters()->addText("txtAgent", tr("Agent :"));
    m_agent = new RecordField<EntityAgent>(new AgentTextBox(agent, service<BusinessAgent>("Agent")));
    connect(m_agent, &RecordFieldBase::chosen, this, &TabAllKomisiAgen::on_btnSearch_clicked);
    for (const char* unused : {"btnEdit", "btnDelete"}) {
        button(unused)->setEnabled(false);
        button(unused)->setShortcut({});
        button(unused)->hide();
    }
    // The "Add" button pays here: it opens a form for the selected row. Its key is F2, which a double click sends too.
    QPushButton* pay = button("btnAdd");
    pay->setText(tr("Pay"));
    pay->setIcon(QIcon(":/icons/pay.png"));
    pay->setShortcut(Qt::Key_F2);
    pay->setToolTip(tr("Pay the agent, or open the payment that did (F2)"));
    refresh();
}

std::shared_ptr<FoundRows> TabAllKomisiAgen::openRows()
{
    AgentSalesFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.status = m_status->currentData().toInt();
    filter.agentId = m_agent->filterId(business());
    return businessAs<BusinessPenjualan>()->openAgentSales(filter);
}

KorEntityModel* TabAllKomisiAgen::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelAllKomisiAgen(rows, this);
}

void TabAllKomisiAgen::modelApplied() { setColumnWidths(grid(), {145, 115, 200, 160, 150, 180}); }

std::unique_ptr<KorDialog> TabAllKomisiAgen::createDialog() { return std::make_unique<DialogKomisiAgen>(this); }

void TabAllKomisiAgen::on_btnAdd_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::BAYAR_KOMISI_AGEN))
        return;
    const auto* sale = static_cast<const EntityAllKomisiAgen*>(selectedEntities(grid(), model()).value(0));
    if (!sale)
        return;
    if (sale->getStatus() == EntityAllKomisiAgen::FULL_PAID)
        editPaymentOf(*sale);
    else
        pay(sale->getAgent()->getId());
    refresh();
}

void TabAllKomisiAgen::pay(int agentId)
{
    EntityPool read;
    const EntityPoolScope scope(read);
    auto* agents = service<BusinessAgent>("Agent");
    KorErrorScope errors(agents);
    // The list reads names and percents only.
    auto* agent = static_cast<EntityAgent*>(agents->find(agentId));
    if (!agent) {
        if (!KorErrorBox::tell(this, errors.take()))
            tellNotFound(notFoundText(agentId));
        return;
    }
    DialogKomisiAgen dialog(this);
    dialog.openAgent(agent);
    runDialog(dialog, true);
}

void TabAllKomisiAgen::editPaymentOf(const EntityAllKomisiAgen& sale)
{
    if (!hasAccess(businessName, BusinessPenjualan::UPDATE_BAYAR_KOMISI_AGEN))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    EntityKomisiAgen* paid = businessAs<BusinessPenjualan>()->getKomisiAgenByInvoiceId(sale.getInvoice()->getId());
    if (!paid) {
        tellNotFound(tr("Can not find invoice of this agent"));
        return;
    }
    if (!hasAccess(businessName, BusinessPenjualan::UPDATE_BAYAR_KOMISI_AGEN, paid))
        return;
    DialogKomisiAgen dialog(this);
    dialog.setEntity(paid);
    runDialog(dialog, false);
}

bool TabAllKomisiAgen::insertEntity(KorEntity* entity)
{
    return businessAs<BusinessPenjualan>()->insertCommision(payment(entity));
}

bool TabAllKomisiAgen::updateEntity(KorEntity* entity)
{
    return businessAs<BusinessPenjualan>()->updateCommision(payment(entity));
}
