#include "zavel/commission/DialogKomisiAgen.h"

#include "app/persistence/AppDataMapper.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "zavel/commission/CommissionAmount.h"
#include "zavel/commission/EntityKomisiAgen.h"
#include "zavel/commission/TabKomisiAgenDetail.h"
#include "zavel/list/EntityPenjualanInfo.h"
#include "zavel/service/BusinessPenjualan.h"

#include "ui_DialogKomisiAgen.h"

namespace
{
const EntityKomisiAgenDetail& commissionLine(const KorEntity& line)
{
    return static_cast<const EntityKomisiAgenDetail&>(line);
}
} // namespace

DialogKomisiAgen::DialogKomisiAgen(QWidget* parent)
    : SettlementDialog(parent), m_ui(std::make_unique<Ui::DialogKomisiAgen>()),
      m_sales(service<BusinessPenjualan>("Sales"))
{
    m_ui->setupUi(this);
    auto* agents = new AgentTextBox(m_ui->txtAgen, service<BusinessAgent>("Agent"));
    agents->setNextWidget(m_ui->txtExpenseAccount);
    setUpSettlement({new RecordField<EntityAgent>(agents, m_ui->txtName, this), m_ui->datePay, m_ui->txtExpenseAccount,
                     m_ui->lblExpenseAccount, m_ui->tabDetail, m_ui->txtGrandTotal, m_ui->buttonBox},
                    {tr("Select an agent"), tr("Add one or more sales invoices"),
                     tr("Enter the amount paid for this Invoice no: %1"), tr("Please select an Expense Account"),
                     tr("Please select a valid Expense Account")},
                    m_ui->tabInvoices, m_sales);
    edits<EntityKomisiAgen>({{m_ui->txtKode, "No"},
                             {m_ui->datePay, "PaymentDate"},
                             {m_ui->txtNoRef, "NoRef"},
                             {m_ui->txtNotes, "Note"},
                             {m_ui->txtPaid, "AmountPaid"},
                             {accountField(), "Bank"}});
    focusLater(m_ui->txtAgen);
}

DialogKomisiAgen::~DialogKomisiAgen() = default;

// --- the agent and the invoices ------------------------------------------------------------------------------------

void DialogKomisiAgen::openAgent(EntityAgent* agent)
{
    takePerson(agent);
    focusLater(m_ui->txtExpenseAccount);
}

void DialogKomisiAgen::onAgentSelected() { readAgain(); }

void DialogKomisiAgen::showPerson(const EntityContact* person)
{
    const auto* agent = static_cast<const EntityAgent*>(person);
    m_ui->txtAddress->setText(agent ? agent->getAlamat() : QString());
    m_ui->txtTelp->setText(agent ? agent->getTelp() : QString());
    m_ui->txtEmail->setText(agent ? agent->getEmail() : QString());
    m_ui->txtPerc->setValue(agent ? agent->getCommisionPerc() : 0.0);
}

QList<KorEntity*> DialogKomisiAgen::readOpenLines(const EntityContact& person)
{
    QList<KorEntity*> lines;
    for (const EntityPenjualanInfo* sale : m_sales->searchPendingInvoiceForAgentCommision(person.getId())) {
        auto* line = new EntityKomisiAgenDetail(AppDataMapper::entityParent());
        line->setInvoice(sale->getInvoice());
        setCommission(line, static_cast<const EntityAgent&>(person).getCommisionPerc());
        lines.append(line);
    }
    return lines;
}

int DialogKomisiAgen::documentIdOf(const KorEntity& line) const { return commissionLine(line).getInvoice()->getId(); }

QString DialogKomisiAgen::documentNoOf(const KorEntity& line) const
{
    return commissionLine(line).getInvoice()->getInvoiceNo();
}

const Money* DialogKomisiAgen::amountOf(const KorEntity& line) const { return commissionLine(line).getCommision(); }

// --- the money -----------------------------------------------------------------------------------------------------

const KorEntity* DialogKomisiAgen::lineWithoutAmount() const
{
    for (const KorEntity* line : m_ui->tabInvoices->lines()) {
        if (commissionLine(*line).getCommision()->rawAmount() == 0)
            return line;
    }
    return nullptr;
}

void DialogKomisiAgen::on_txtPaid_textChanged(const QString&) { totalChanged(); }

void DialogKomisiAgen::totalChanged()
{
    // What remains to be paid; the payment forms of sales show the opposite sign.
    const double due = m_ui->txtGrandTotal->value() - m_ui->txtPaid->value();
    m_ui->txtNetDue->setValue(due);
    m_ui->lblNetDue->setText(due <= 0 ? tr("Change :") : tr("Less :"));
}

void DialogKomisiAgen::checkAmounts()
{
    // An empty box means 0. A box with an invalid number still returns its last valid value.
    const bool isEmpty = m_ui->txtPaid->text().isEmpty();
    const double paid = isEmpty ? 0 : m_ui->txtPaid->value();
    if (!isEmpty && !m_ui->txtPaid->isValid())
        return;
    if (paid <= 0 || paid < m_ui->txtGrandTotal->value())
        addError(m_ui->txtPaid, tr("The amount paid less than the total invoice"));
}

// --- the record ----------------------------------------------------------------------------------------------------

void DialogKomisiAgen::setEntity(KorEntity* entity)
{
    SettlementDialog::setEntity(entity);
    const auto* payment = held<EntityKomisiAgen>();
    showStored(payment->getAgent(), asEntities(payment->getDetails()), false);
}

KorEntity* DialogKomisiAgen::getEntity()
{
    SettlementDialog::getEntity();
    auto* payment = held<EntityKomisiAgen>();
    payment->setAgent(static_cast<EntityAgent*>(person()));
    payment->setNetDue(m_ui->txtNetDue->money());
    payment->setDetails(castAll<EntityKomisiAgenDetail>(m_ui->tabInvoices->lines()));
    payment->setRemovedDetails(castAll<EntityKomisiAgenDetail>(removedLines(m_ui->tabInvoices->lines())));
    return payment;
}
