#include "zavel/payment/PaymentDialog.h"

#include "app/context/AppContext.h"
#include "app/widgets/AppNumberEdit.h"
#include "app/widgets/MoneyEdit.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorTabOrder.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/Invoice.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "pos/masterdata/member/MemberTextBox.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>

PaymentDialog::PaymentDialog(NetDueSign netDue, QWidget* parent)
    : KorDialog(parent), m_netDue(netDue), m_sales(service<BusinessPenjualan>("Sales"))
{}

void PaymentDialog::setUp(const Form& form, QWidget* linesPage)
{
    m_form = form;
    m_linesPage = linesPage;
    m_form.pages->addTab(linesPage, tr("[F3] Menu"));
    putIntoTabOrder(m_form.pages, linesPage);
    m_cascade = new TotalsCascade(form.amounts, this);
    m_parties = new PaymentParties(form.parties, this);
    connectParties();

    makeTouchable(form.buttons);
    form.buttons->button(QDialogButtonBox::Ok)->setToolTip(tr("Save the invoice"));
    form.date->setDisplayFormat(AppContext::instance()->dateFormat());
    form.date->setDate(QDate::currentDate());
    onKey(Qt::Key_F3, [this] { onTabItemSelected(); });
    onKey(Qt::Key_F9, [paid = form.amounts.paid] { paid->setFocus(Qt::ShortcutFocusReason); });
    onKey(Qt::Key_F10, [credit = form.amounts.credit] { credit->setFocus(Qt::ShortcutFocusReason); });
    QTimer::singleShot(0, form.amounts.paid, [paid = form.amounts.paid] {
        // ShortcutFocusReason selects the text even if the window becomes active later: typing replaces the figure.
        paid->setFocus(Qt::ShortcutFocusReason);
        paid->selectAll();
    });
}

void PaymentDialog::connectParties()
{
    const auto onChoice = [this](RecordFieldBase* field, auto action) {
        if (field)
            connect(field, &RecordFieldBase::chosen, this, action);
    };
    onChoice(m_parties->memberField(), &PaymentDialog::onMemberSelected);
    onChoice(m_parties->agentField(), &PaymentDialog::onAgentSelected);
    onChoice(m_parties->employeeField(), &PaymentDialog::onEmployeeSelected);
    m_parties->cashField()->box()->setNextWidget(m_form.amounts.paid);
}

void PaymentDialog::onKey(const QKeySequence& key, const std::function<void()>& action)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
}

// --- showing -------------------------------------------------------------------------------------------------------

void PaymentDialog::showNewInvoice(const QDate& date)
{
    m_form.date->setDate(date);
    m_cascade->clear();
    m_parties->showDefaultAccount();
}

void PaymentDialog::showInvoice(const Invoice& invoice)
{
    m_form.number->setText(invoice.getInvoiceNo());
    m_form.date->setDate(invoice.getInvoiceDate());
    m_form.date->setEnabled(false);
    m_parties->showAccount(invoice.getAcctCode());
    m_form.notes->setPlainText(invoice.getNote());
    m_cascade->readFrom(invoice);
}

void PaymentDialog::showGuest(EntityMember* member, const QString& name)
{
    m_parties->showMember(member);
    m_form.guest->setText(member ? member->getNama() : name);
}

void PaymentDialog::applyMemberDiscount(const EntityMember* member)
{
    if (member && QDate::currentDate() <= member->getExpiredDate())
        m_cascade->proposeDiscount(member->getDiscountPercentage());
}

// --- entries -------------------------------------------------------------------------------------------------------

void PaymentDialog::onMemberSelected()
{
    const EntityMember* member = m_parties->member();
    if (!member)
        return;
    m_form.guest->setText(member->getNama());
    if (!isStored())
        applyMemberDiscount(member);
}

void PaymentDialog::onItemAdded()
{
    double subtotal = 0;
    const QList<EntityInvoiceDetail*> lines = invoiceLines();
    for (const EntityInvoiceDetail* line : lines) {
        if (line->getTotal())
            subtotal += double(line->getTotal()->rawAmount()) / line->getTotal()->factor();
    }
    m_cascade->setSubtotal(subtotal);
}

void PaymentDialog::onTabItemSelected()
{
    m_form.pages->setCurrentWidget(m_linesPage);
    focusLines();
}

void PaymentDialog::on_txtPaid_textChanged(const QString&) { m_cascade->calculateTotal(); }

void PaymentDialog::on_txtCredit_textChanged(const QString&) { m_cascade->calculateTotal(); }

void PaymentDialog::on_txtDiscPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Discount); }

void PaymentDialog::on_txtDiscount_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Discount); }

void PaymentDialog::on_txtTaxPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Tax); }

void PaymentDialog::on_txtTax_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Tax); }

void PaymentDialog::on_txtServicePerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Service); }

void PaymentDialog::on_txtService_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Service); }

// --- saving --------------------------------------------------------------------------------------------------------

bool PaymentDialog::validate()
{
    m_cascade->settleProposal();
    if (invoiceLines().isEmpty())
        addError(m_form.pages, tr("Add one or more menu"));
    m_parties->lookUp();
    checkAmounts();
    return !hasError();
}

void PaymentDialog::checkAmounts()
{
    if (!checkNumbers())
        return;
    const QString tooLarge = tr("An amount is larger than an invoice can hold. Please check the figures.");
    const QList<EntityInvoiceDetail*> lines = invoiceLines();
    for (const EntityInvoiceDetail* line : lines) {
        if (!line->totalFits()) {
            addError(m_form.pages, tooLarge);
            return;
        }
    }
    m_cascade->calculateTotal();
    m_cascade->checkDiscount(*this);
    if (!m_cascade->totals().fits())
        addError(m_form.amounts.paid, tooLarge);
}

void PaymentDialog::fillInvoice(Invoice* invoice)
{
    invoice->setInvoiceDate(m_form.date->date());
    invoice->setMember(m_parties->member());
    invoice->setAgent(m_parties->agent());
    invoice->setNote(m_form.notes->toPlainText());
    const EntityBank* account = m_parties->cashAccount();
    invoice->setAcctCode(account ? account->getKode() : m_form.parties.cashAccount->text());
    m_cascade->writeTo(invoice);
    if (m_netDue == StoresWhatIsShown)
        invoice->setNetDue(m_form.amounts.netDue->money());
}

bool PaymentDialog::ask(const QString& question)
{
    return QMessageBox::question(this, tr("Question"), question, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}
