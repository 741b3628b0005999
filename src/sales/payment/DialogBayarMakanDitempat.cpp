#include "sales/payment/DialogBayarMakanDitempat.h"

#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "masterdata/agent/AgentTextBox.h"
#include "masterdata/bank/BankTextBox.h"
#include "masterdata/employee/EmployeeTextBox.h"
#include "masterdata/member/MemberTextBox.h"
#include "printing/slips/ZavelReportFactory.h"
#include "sales/invoice/EntityInvoiceDetail.h"
#include "sales/payment/DialogSelectSplitInvoice.h"
#include "sales/payment/EntityInvoiceMakanDitempat.h"
#include "sales/payment/PaymentCascade.h"
#include "sales/payment/PaymentParties.h"
#include "sales/payment/TabBayarMakanDitempatDetail.h"
#include "sales/service/BusinessPenjualan.h"

#include "ui_DialogBayarMakanDitempat.h"

#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

DialogBayarMakanDitempat::DialogBayarMakanDitempat(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogBayarMakanDitempat>()),
      m_sales(service<BusinessPenjualan>("Sales"))
{
    m_ui->setupUi(this);
    m_menu = new TabBayarMakanDitempatDetail(this);
    m_ui->tabDetail->addTab(m_menu, tr("[F3] Menu"));
    m_cascade = new PaymentCascade({m_ui->txtSubTotal,
                                    {m_ui->txtDiscPerc, m_ui->txtTaxPerc, m_ui->txtServicePerc},
                                    {m_ui->txtDiscount, m_ui->txtTax, m_ui->txtService},
                                    m_ui->txtPaid,
                                    m_ui->txtCredit,
                                    {m_ui->txtGrandTotal, m_ui->txtGrandTotal_2},
                                    m_ui->txtNetDue,
                                    m_ui->lblNetDue},
                                   this);
    m_parties = new PaymentParties(
        {m_ui->txtMember, m_ui->txtAgent, m_ui->txtEmployee, m_ui->txtCashAccount, m_ui->lblCashAccount}, this);
    setUpFields();
    QTimer::singleShot(0, m_ui->txtPaid, [this] {
        // Selected even when the window becomes active later: the first figure replaces what stands in the box.
        m_ui->txtPaid->setFocus(Qt::ShortcutFocusReason);
        m_ui->txtPaid->selectAll();
    });
}

DialogBayarMakanDitempat::~DialogBayarMakanDitempat() = default;

void DialogBayarMakanDitempat::setUpFields()
{
    m_parties->employeeBox()->setNextWidget(m_ui->txtDiscPerc);
    m_parties->cashBox()->setNextWidget(m_ui->txtPaid);
    const auto onChoice = [this](KorTextBoxExtender* box, auto action) {
        connect(box, &KorTextBoxExtender::onItemSelected, this, action);
    };
    onChoice(m_parties->memberBox(), &DialogBayarMakanDitempat::onMemberSelected);
    onChoice(m_parties->agentBox(), &DialogBayarMakanDitempat::onAgentSelected);
    onChoice(m_parties->employeeBox(), &DialogBayarMakanDitempat::onEmployeeSelected);
    onChoice(m_parties->cashBox(), &DialogBayarMakanDitempat::onCashAccountSelected);
    connect(m_menu, &TabBayarMakanDitempatDetail::ItemAdded, this, &DialogBayarMakanDitempat::onItemAdded);

    makeTouchable(m_ui->buttonBox);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setToolTip(tr("Save the invoice"));
    for (QDateEdit* date : {m_ui->datePay, m_ui->dateDue}) {
        date->setDisplayFormat(AppContext::instance()->dateFormat());
        date->setDate(QDate::currentDate());
    }
    const auto onKey = [this](const QKeySequence& key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_F3, &DialogBayarMakanDitempat::onTabItemSelected);
    onKey(Qt::Key_F9, [this] { m_ui->txtPaid->setFocus(Qt::ShortcutFocusReason); });
    onKey(Qt::Key_F10, [this] { m_ui->txtCredit->setFocus(Qt::ShortcutFocusReason); });
    onKey(QKeySequence("Ctrl+P"), &DialogBayarMakanDitempat::on_btnPrintBill_clicked);
}

// --- opening -------------------------------------------------------------------------------------------------------

bool DialogBayarMakanDitempat::openOrder(EntityMakanDitempat* order)
{
    m_order = order;
    m_sales->clearErrors();
    QList<EntityInvoiceMakanDitempat*> invoices;
    if (order->isSaved()) {
        const EntityPoolScope scope(m_read);
        invoices = m_sales->getInvoicesOfOrder(order->getId());
    }
    if (m_sales->hasError()) {
        showServiceError();
        return false;
    }
    if (invoices.isEmpty()) {
        newInvoice();
        return true;
    }
    if (invoices.size() == 1) {
        setEntity(invoices.first());
        return true;
    }
    DialogSelectSplitInvoice choice(invoices, this);
    if (choice.exec() != Accepted)
        return false;
    setEntity(choice.selectedInvoice());
    return true;
}

void DialogBayarMakanDitempat::newInvoice()
{
    m_ui->datePay->setDate(m_order->getTgl().isValid() ? m_order->getTgl() : QDate::currentDate());
    m_ui->dateDue->setDate(m_ui->datePay->date());
    m_cascade->clear();
    QList<EntityInvoiceDetail*> lines;
    for (const EntityOrderDetail* ordered : m_order->getDetails()) {
        // Recomputed from price and quantity: the order line's own total may be behind its quantity.
        auto* line = new EntityInvoiceDetail(this);
        line->setItem(ordered->getItem());
        line->setQty(ordered->getQty());
        line->setPriceEach(ordered->getPriceEach());
        line->recomputeTotal();
        lines.append(line);
    }
    m_menu->setDetails(lines);
    showGuest();
    applyMemberDiscount(m_order->getMember());
    m_parties->showDefaultAccount();
}

void DialogBayarMakanDitempat::setEntity(KorEntity* entity)
{
    m_sale = static_cast<EntityInvoiceMakanDitempat*>(entity);
    m_order = m_sale->getMakanDitempat();
    showInvoice();
}

void DialogBayarMakanDitempat::showInvoice()
{
    const Invoice* invoice = m_sale->getInvoice();
    m_ui->txtKode->setText(invoice->getInvoiceNo());
    m_ui->datePay->setDate(invoice->getInvoiceDate());
    m_ui->datePay->setEnabled(false);
    m_ui->dateDue->setDate(m_sale->getDueDate().isValid() ? m_sale->getDueDate() : invoice->getInvoiceDate());
    m_parties->showAgent(m_sale->getAgent());
    m_parties->showEmployee(m_sale->getEmployee());
    m_parties->showAccount(invoice->getAcctCode());
    m_ui->txtNotes->setPlainText(invoice->getNote());
    m_cascade->readFrom(*invoice);
    m_menu->setDetails(m_sale->getDetails());
    m_order->setMember(invoice->getMember());
    showGuest();
}

void DialogBayarMakanDitempat::showGuest()
{
    m_ui->txtMeja->setText(m_order->getMeja() ? m_order->getMeja()->getNama() : QString());
    const EntityMember* member = m_order->getMember();
    m_parties->showMember(member);
    m_ui->txtNamaPelanggan->setText(member ? member->getNama() : m_order->getPemesan());
}

void DialogBayarMakanDitempat::applyMemberDiscount(const EntityMember* member)
{
    if (member && QDate::currentDate() <= member->getExpiredDate())
        m_cascade->proposeDiscount(member->getDiscountPercentage());
}

// --- entries -------------------------------------------------------------------------------------------------------

void DialogBayarMakanDitempat::onTableSelected() {}

void DialogBayarMakanDitempat::onMemberSelected()
{
    const EntityMember* member = m_parties->memberBox()->selectedItem();
    if (!member)
        return;
    m_ui->txtNamaPelanggan->setText(member->getNama());
    // A stored invoice keeps the discount that it was saved with.
    if (!m_sale || !m_sale->isSaved())
        applyMemberDiscount(member);
}

void DialogBayarMakanDitempat::onAgentSelected() {}

void DialogBayarMakanDitempat::onEmployeeSelected() {}

void DialogBayarMakanDitempat::onItemAdded()
{
    double subtotal = 0;
    for (const EntityInvoiceDetail* line : m_menu->details()) {
        if (line->getTotal())
            subtotal += double(line->getTotal()->rawAmount()) / line->getTotal()->factor();
    }
    m_cascade->setSubtotal(subtotal);
}

void DialogBayarMakanDitempat::onTabItemSelected()
{
    m_ui->tabDetail->setCurrentWidget(m_menu);
    m_menu->focusGrid();
}

void DialogBayarMakanDitempat::on_txtPaid_textChanged(const QString&) { m_cascade->calculateTotal(); }

void DialogBayarMakanDitempat::on_txtCredit_textChanged(const QString&) { m_cascade->calculateTotal(); }

void DialogBayarMakanDitempat::on_txtDiscPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Discount); }

void DialogBayarMakanDitempat::on_txtDiscount_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Discount); }

void DialogBayarMakanDitempat::on_txtTaxPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Tax); }

void DialogBayarMakanDitempat::on_txtTax_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Tax); }

void DialogBayarMakanDitempat::on_txtServicePerc_editingFinished()
{
    m_cascade->percentEntered(InvoiceTotals::Service);
}

void DialogBayarMakanDitempat::on_txtService_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Service); }

void DialogBayarMakanDitempat::onCashAccountSelected() { m_parties->showPickedAccount(); }

// --- saving --------------------------------------------------------------------------------------------------------

bool DialogBayarMakanDitempat::validate()
{
    if (!m_order || !m_order->getMeja())
        addError(m_ui->txtMeja, tr("Select a table"));
    if (m_menu->details().isEmpty())
        addError(m_ui->tabDetail, tr("Add one or more menu"));
    m_parties->lookUp();
    checkAmounts();
    return !hasError();
}

void DialogBayarMakanDitempat::checkAmounts()
{
    if (QLineEdit* box = m_cascade->wrongEntry()) {
        addError(box, tr("Please enter a number"));
        return;
    }
    const QString tooLarge = tr("An amount is larger than an invoice can hold. Please check the figures.");
    for (const EntityInvoiceDetail* line : m_menu->details()) {
        if (!line->totalFits()) {
            addError(m_ui->tabDetail, tooLarge);
            return;
        }
    }
    m_cascade->calculateTotal();
    if (!m_cascade->totals().fits())
        addError(m_ui->txtPaid, tooLarge);
}

KorEntity* DialogBayarMakanDitempat::getEntity()
{
    if (!m_sale)
        m_sale = new EntityInvoiceMakanDitempat(this);
    m_order->setMember(m_parties->member());
    m_sale->setMakanDitempat(m_order);
    m_sale->setAgent(m_parties->agent());
    m_sale->setEmployee(m_parties->employee());
    m_sale->setDueDate(m_ui->dateDue->date());
    m_sale->setDetails(m_menu->details());
    Invoice* invoice = m_sale->getInvoice();
    invoice->setInvoiceDate(m_ui->datePay->date());
    invoice->setMember(m_parties->member());
    // An order's guest may have a longer name than an invoice has room for.
    invoice->setPemesan(m_order->getPemesan().left(50));
    invoice->setNote(m_ui->txtNotes->toPlainText());
    invoice->setAgent(m_parties->agent());
    const EntityBank* account = m_parties->cashAccount();
    invoice->setAcctCode(account ? account->getKode() : m_ui->txtCashAccount->text());
    m_cascade->writeTo(invoice);
    return m_sale;
}

bool DialogBayarMakanDitempat::beforeAccept()
{
    if (m_menu->hasPendingSplit())
        QMessageBox::information(this, tr("Info"), tr("Please split the invoice first"));
    else
        saveInvoice();
    // The form stays on the saved invoice; closing it is the cashier's choice.
    return false;
}

void DialogBayarMakanDitempat::saveInvoice()
{
    getEntity();
    m_sales->clearErrors();
    const bool saved = m_sale->isSaved() ? m_sales->updateInvoice(m_sale) : m_sales->insertInvoice(m_sale);
    if (m_sales->hasError())
        showServiceError();
    if (!saved)
        return;
    m_ui->txtKode->setText(m_sale->getInvoice()->getInvoiceNo());
    if (!readOrderAgain())
        return;
    offerToPrint();
    offerToFinish();
    readInvoiceAgain();
}

bool DialogBayarMakanDitempat::readOrderAgain()
{
    const EntityPoolScope scope(m_read);
    EntityMakanDitempat* order = m_sales->findOrder(m_order->getId());
    if (!order) {
        showMissing(m_order->getId());
        return false;
    }
    m_order = order;
    return true;
}

void DialogBayarMakanDitempat::readInvoiceAgain()
{
    EntityPool fresh;
    KorEntity* sale = nullptr;
    {
        const EntityPoolScope scope(fresh);
        sale = m_sales->findInvoiceMakanDitempat(m_sale->getId());
    }
    if (!sale) {
        showMissing(m_sale->getId());
        return;
    }
    setEntity(sale);
    m_read.swap(fresh);
    // The box in hand shows the stored figure now; what is typed next replaces it.
    if (auto* box = qobject_cast<QLineEdit*>(focusWidget()))
        box->selectAll();
}

void DialogBayarMakanDitempat::showMissing(int id)
{
    showError(m_sales->hasError() ? m_sales->takeErrors() : tr("Can not find entity with id: %1").arg(id));
}

void DialogBayarMakanDitempat::offerToPrint()
{
    if (!m_print && ask(tr("Do you want to print this invoice?")))
        m_print = true;
    if (m_print)
        printBill();
}

void DialogBayarMakanDitempat::offerToFinish()
{
    if (m_order->getStatus() == EntityOrder::PAID &&
        ask(tr("Are you done with this table: %1 ?").arg(m_order->getMeja()->getNama())))
        finishTable();
}

bool DialogBayarMakanDitempat::finishTable()
{
    if (m_sales->makanDitempatSelesai(m_order))
        return true;
    showServiceError();
    return false;
}

void DialogBayarMakanDitempat::printBill() { ZavelReportFactory::instance()->printBillMakanDitempat(m_sale->getId()); }

void DialogBayarMakanDitempat::on_btnPrintBill_clicked()
{
    // By its key the button is pressed while a box is still being typed in.
    m_ui->btnPrintBill->setFocus();
    m_print = true;
    accept();
}

void DialogBayarMakanDitempat::on_btnFinish_clicked()
{
    if (!m_sale || !m_sale->isSaved()) {
        QMessageBox::critical(this, tr("Error"), tr("Please save this invoice first"));
        return;
    }
    if (finishTable())
        reject();
}

bool DialogBayarMakanDitempat::ask(const QString& question)
{
    return QMessageBox::question(this, tr("Question"), question, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

void DialogBayarMakanDitempat::showServiceError() { showError(m_sales->takeErrors()); }
