#include "zavel/dinein/DialogBayarMakanDitempat.h"

#include "app/context/AppContext.h"
#include "app/widgets/AppNumberEdit.h"
#include "app/widgets/RecordField.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "zavel/dinein/DialogSelectSplitInvoice.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/TabBayarMakanDitempatDetail.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/payment/PaymentMoneyPane.h"
#include "zavel/service/BusinessPenjualan.h"

#include "ui_DialogBayarMakanDitempat.h"

#include <QMessageBox>

DialogBayarMakanDitempat::DialogBayarMakanDitempat(QWidget* parent)
    : OrderPaymentDialog(StoresWhatIsOwed, parent), m_ui(std::make_unique<Ui::DialogBayarMakanDitempat>())
{
    m_ui->setupUi(this);
    m_menu = new TabBayarMakanDitempatDetail(this);
    connect(m_menu, &TabBayarMakanDitempatDetail::ItemAdded, this, &DialogBayarMakanDitempat::onItemAdded);
    connect(m_menu, &TabBayarMakanDitempatDetail::SplitInvoice, this, &DialogBayarMakanDitempat::onSplitInvoice);
    Form form = formOf(*m_ui);
    form.parties.agent = m_ui->txtAgent;
    form.parties.employee = m_ui->txtEmployee;
    setUp(form, m_menu);
    parties()->employeeField()->box()->setNextWidget(form.amounts.percents[InvoiceTotals::Discount]);
    m_ui->dateDue->setDisplayFormat(AppContext::instance()->dateFormat());
    m_ui->dateDue->setDate(QDate::currentDate());
    onKey(QKeySequence("Ctrl+P"), [this] { on_btnPrintBill_clicked(); });
}

DialogBayarMakanDitempat::~DialogBayarMakanDitempat() = default;

// --- the order of a table ------------------------------------------------------------------------------------------

OrderPaymentDialog::Texts DialogBayarMakanDitempat::texts() const
{
    const auto* dine = static_cast<const EntityMakanDitempat*>(order());
    return {tr("Do you want to print this invoice?"),
            tr("Are you done with this table: %1 ?").arg(dine->getMeja()->getNama()),
            tr("Please save this invoice first")};
}

QList<EntityInvoiceLink*> DialogBayarMakanDitempat::readInvoices(int orderId)
{
    QList<EntityInvoiceLink*> invoices;
    for (EntityInvoiceMakanDitempat* invoice : sales()->getInvoicesOfOrder(orderId))
        invoices.append(invoice);
    return invoices;
}

EntityOrder* DialogBayarMakanDitempat::readOrder(int id) { return sales()->findOrder(id); }

EntityInvoiceLink* DialogBayarMakanDitempat::choose(const QList<EntityInvoiceLink*>& invoices)
{
    QList<EntityInvoiceMakanDitempat*> ofTable;
    for (EntityInvoiceLink* invoice : invoices)
        ofTable.append(static_cast<EntityInvoiceMakanDitempat*>(invoice));
    DialogSelectSplitInvoice choice(ofTable, this);
    return choice.exec() == Accepted ? choice.selectedInvoice() : nullptr;
}

EntityInvoiceLink* DialogBayarMakanDitempat::createSale() { return new EntityInvoiceMakanDitempat(this); }

EntityInvoiceLink* DialogBayarMakanDitempat::readSale(int id) { return sales()->findInvoiceMakanDitempat(id); }

EntityOrder* DialogBayarMakanDitempat::orderOf(const EntityInvoiceLink& sale) const
{
    return static_cast<const EntityInvoiceMakanDitempat&>(sale).getMakanDitempat();
}

void DialogBayarMakanDitempat::showOrder(const EntityOrder& order)
{
    const EntityMeja* table = static_cast<const EntityMakanDitempat&>(order).getMeja();
    m_ui->txtMeja->setText(table ? table->getNama() : QString());
    if (!sale())
        m_ui->dateDue->setDate(m_ui->datePay->date());
}

void DialogBayarMakanDitempat::showSale(const EntityInvoiceLink& sale)
{
    const auto& dine = static_cast<const EntityInvoiceMakanDitempat&>(sale);
    const QDate due = dine.getDueDate();
    m_ui->dateDue->setDate(due.isValid() ? due : dine.getInvoice()->getInvoiceDate());
    parties()->showAgent(dine.getAgent());
    parties()->showEmployee(dine.getEmployee());
}

void DialogBayarMakanDitempat::fillSale(EntityInvoiceLink* sale, EntityOrder* order)
{
    auto* dine = static_cast<EntityInvoiceMakanDitempat*>(sale);
    dine->setMakanDitempat(static_cast<EntityMakanDitempat*>(order));
    dine->setAgent(parties()->agent());
    dine->setEmployee(parties()->employee());
    dine->setDueDate(m_ui->dateDue->date());
}

bool DialogBayarMakanDitempat::finish(EntityOrder* order)
{
    return sales()->makanDitempatSelesai(static_cast<EntityMakanDitempat*>(order));
}

void DialogBayarMakanDitempat::printBill(int saleId) { SlipRequests::instance()->printBillMakanDitempat(saleId); }

// --- lines and saving ----------------------------------------------------------------------------------------------

QList<EntityInvoiceDetail*> DialogBayarMakanDitempat::invoiceLines() const { return m_menu->details(); }

void DialogBayarMakanDitempat::setLines(const InvoiceLines& lines) { m_menu->setDetails(lines); }

void DialogBayarMakanDitempat::focusLines() { m_menu->focusGrid(); }

bool DialogBayarMakanDitempat::validate()
{
    if (!order() || !static_cast<EntityMakanDitempat*>(order())->getMeja())
        addError(m_ui->txtMeja, tr("Select a table"));
    return OrderPaymentDialog::validate();
}

bool DialogBayarMakanDitempat::beforeAccept()
{
    if (m_splitting) {
        m_saved = saveInvoice();
        return false;
    }
    if (m_menu->hasPendingSplit()) {
        QMessageBox::information(this, tr("Info"), tr("Please split the invoice first"));
        m_menu->showSplit();
        return false;
    }
    if (saveInvoice() && !m_isGroup)
        offerToFinish();
    return false;
}

void DialogBayarMakanDitempat::on_btnPrintBill_clicked() { saveAndPrint(m_ui->btnPrintBill); }

// --- paying apart --------------------------------------------------------------------------------------------------

void DialogBayarMakanDitempat::getSplitInvoices() { m_groups = splitGroups(m_menu->details(), this); }

bool DialogBayarMakanDitempat::confirmsSplit()
{
    return QMessageBox::question(
               this, tr("Save"),
               tr("Are you sure you want to split this invoice? Please make sure everything is correct."),
               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void DialogBayarMakanDitempat::onSplitInvoice()
{
    if (isStored() && sale()->getInvoice()->getStatus() == Invoice::FULL_PAID) {
        QMessageBox::critical(this, tr("Error"), tr("This invoice is already paid"));
        return;
    }
    getSplitInvoices();
    if (m_groups.isEmpty()) {
        QMessageBox::critical(this, tr("Error"), tr("There is no invoice to split"));
        return;
    }
    if (!confirmsSplit())
        return;
    m_saved = false;
    m_splitting = true;
    accept();
    m_splitting = false;
    // If saving failed, the invoice keeps its lines and its split.
    if (!m_saved)
        return;
    InvoiceLines unpaid;
    for (auto group = m_groups.cbegin(); group != m_groups.cend(); ++group) {
        if (!payGroup(group.key(), group.value()))
            unpaid += group.value();
    }
    m_groups.clear();
    // Saving the groups' invoices has changed the order's version.
    if (readAgain() && !unpaid.isEmpty())
        takeBack(unpaid);
    // Only after all groups have paid: the table is not free before.
    if (!m_isGroup)
        offerToFinish();
}

bool DialogBayarMakanDitempat::payGroup(const QString& group, const InvoiceLines& lines)
{
    EntityPool pool;
    EntityMakanDitempat* fresh = nullptr;
    {
        const EntityPoolScope scope(pool);
        fresh = sales()->findOrder(order()->getId());
    }
    if (!fresh) {
        showMissing(order()->getId());
        return false;
    }
    DialogBayarMakanDitempat form(this);
    form.addKnownBills(knownBills());
    form.showGroup(fresh, lines, sale()->getInvoice()->getInvoiceNo() + tr(" Split: ") + group);
    form.exec();
    if (form.isStored())
        addKnownBills({form.sale()->getInvoice()->getId()});
    return form.isStored();
}

void DialogBayarMakanDitempat::showGroup(EntityMakanDitempat* order, const InvoiceLines& lines, const QString& note)
{
    m_isGroup = true;
    showNewSale(order, lines);
    m_ui->txtKode->setText(note);
}

void DialogBayarMakanDitempat::takeBack(const InvoiceLines& lines)
{
    InvoiceLines all = m_menu->details();
    addLines(lines, &all, this);
    m_menu->setDetails(all);
    m_splitting = true;
    accept();
    m_splitting = false;
}
