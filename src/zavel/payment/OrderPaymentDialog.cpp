#include "zavel/payment/OrderPaymentDialog.h"

#include "app/access/BusinessUser.h"
#include "app/context/EntityUser.h"
#include "app/money/Money.h"
#include "app/widgets/UnfinishedSave.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/EntityInvoiceLink.h"
#include "zavel/order/EntityOrder.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace
{
InvoiceLines linesOf(const QList<EntityInvoiceLink*>& bills)
{
    InvoiceLines lines;
    for (const EntityInvoiceLink* bill : bills)
        lines += bill->getDetails();
    return lines;
}
} // namespace

// --- opening -------------------------------------------------------------------------------------------------------

bool OrderPaymentDialog::openOrder(EntityOrder* order)
{
    m_order = order;
    KorErrorScope errors(sales());
    QList<EntityInvoiceLink*> invoices;
    if (order->isSaved()) {
        const EntityPoolScope scope(m_read);
        invoices = readInvoices(order->getId());
    }
    if (showError(errors.take()))
        return false;
    if (invoices.isEmpty()) {
        showNewSale(order, billOf(*order, this));
        return true;
    }
    for (const EntityInvoiceLink* invoice : qAsConst(invoices))
        m_knownBills.append(invoice->getInvoice()->getId());
    const BillDifference difference = differenceOf(*order, linesOf(invoices), this);
    const Remedy remedy = difference.isEmpty() ? LeaveBill : askForRemedy(difference);
    if (remedy == MakeSecondBill) {
        showNewSale(order, difference.unbilled);
        return true;
    }
    EntityInvoiceLink* chosen = invoices.size() == 1 ? invoices.first() : choose(invoices);
    if (!chosen)
        return false;
    setEntity(chosen);
    if (remedy == ChangeBill)
        changeLines(difference);
    return true;
}

OrderPaymentDialog::Remedy OrderPaymentDialog::askForRemedy(const BillDifference& difference)
{
    QMessageBox box(QMessageBox::Question, tr("Question"),
                    tr("This order has changed since it was billed.") + "\r\n" + difference.text(),
                    QMessageBox::NoButton, this);
    QPushButton* change = box.addButton(QMessageBox::Yes);
    change->setText(difference.unbilled.isEmpty() ? tr("Take Off the Bill") : tr("Add to This Bill"));
    if (!difference.unbilled.isEmpty())
        box.addButton(QMessageBox::Save)->setText(tr("Make a Second Bill"));
    QPushButton* leave = box.addButton(QMessageBox::No);
    leave->setText(tr("Leave the Bill"));
    box.setDefaultButton(change);
    box.setEscapeButton(leave);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return ChangeBill;
    case QMessageBox::Save:
        return MakeSecondBill;
    default:
        return LeaveBill;
    }
}

void OrderPaymentDialog::changeLines(const BillDifference& difference)
{
    const InvoiceTotals before = cascade()->totals();
    InvoiceLines lines = invoiceLines();
    takeOffLines(difference.takenBack, &lines);
    addLines(difference.unbilled, &lines, this);
    setLines(lines);
    for (const InvoiceTotals::Part part : {InvoiceTotals::Discount, InvoiceTotals::Tax, InvoiceTotals::Service}) {
        // A percentage applies to the added dishes too; an amount that was entered as such stays unchanged.
        const double ofPercent = before.subtotal() * (before.percent(part) / 100);
        if (InvoiceTotals::kept(ofPercent, before.currency()) == before.amount(part))
            cascade()->percentEntered(part);
        else
            cascade()->amountEntered(part);
    }
}

void OrderPaymentDialog::showNewSale(EntityOrder* order, const InvoiceLines& lines)
{
    m_order = order;
    showNewInvoice(order->getTgl().isValid() ? order->getTgl() : QDate::currentDate());
    setLines(lines);
    showOrder(*order);
    showGuest(order->getMember(), order->getPemesan());
    applyMemberDiscount(order->getMember());
}

void OrderPaymentDialog::setEntity(KorEntity* sale)
{
    m_sale = static_cast<EntityInvoiceLink*>(sale);
    m_order = orderOf(*m_sale);
    const Invoice* invoice = m_sale->getInvoice();
    showInvoice(*invoice);
    showSale(*m_sale);
    setLines(m_sale->getDetails());
    m_order->setMember(invoice->getMember());
    showOrder(*m_order);
    showGuest(m_order->getMember(), m_order->getPemesan());
}

bool OrderPaymentDialog::isStored() const { return m_sale && m_sale->isSaved(); }

// --- saving --------------------------------------------------------------------------------------------------------

KorEntity* OrderPaymentDialog::getEntity()
{
    if (!m_sale)
        m_sale = createSale();
    m_order->setMember(parties()->member());
    fillSale(m_sale, m_order);
    m_sale->setDetails(invoiceLines());
    // The order's column for the guest's name is wider than the invoice's.
    m_sale->getInvoice()->setPemesan(m_order->getPemesan().left(50));
    fillInvoice(m_sale->getInvoice());
    return m_sale;
}

bool OrderPaymentDialog::beforeAccept()
{
    if (saveInvoice())
        offerToFinish();
    // False keeps the form open on the saved invoice; the cashier closes it.
    return false;
}

bool OrderPaymentDialog::saveInvoice()
{
    getEntity();
    KorErrorScope errors(sales());
    const bool isFirst = !isStored();
    m_sale->setKnownBills(m_knownBills);
    const bool saved = isStored() ? sales()->updateInvoice(m_sale) : sales()->insertInvoice(m_sale);
    if (!saved) {
        const QString failure = errors.take();
        if (!isFirst || !showBillOfAnother())
            showError(failure);
        return false;
    }
    if (errors.failed()) {
        UnfinishedSave{UnfinishedSave::saved(m_sale->getInvoice()->getInvoiceNo()), tr("the status of its order"),
                       tr("Later, press OK in this form again."),
                       [&] { return sales()->finishInvoice(m_sale, isFirst); }}
            .offer(this, sales());
    }
    m_knownBills.append(m_sale->getInvoice()->getId());
    // Read again before asking anything, because a question may stay open for a long time.
    if (!readSaved()) {
        showInvoice(*m_sale->getInvoice());
        return false;
    }
    if (!m_print && ask(texts().print))
        m_print = true;
    if (m_print)
        printBill(m_sale->getId());
    // The focused box shows the stored figure; typing replaces it.
    if (auto* box = qobject_cast<QLineEdit*>(focusWidget()))
        box->selectAll();
    return true;
}

bool OrderPaymentDialog::showBillOfAnother()
{
    const EntityPoolScope scope(m_read);
    const KorErrorScope errors(sales());
    QList<EntityInvoiceLink*> strangers = readInvoices(m_order->getId());
    strangers.erase(std::remove_if(strangers.begin(), strangers.end(),
                                   [this](const EntityInvoiceLink* bill) {
                                       return m_knownBills.contains(bill->getInvoice()->getId());
                                   }),
                    strangers.end());
    if (strangers.isEmpty())
        return false;
    QStringList bills;
    for (const EntityInvoiceLink* bill : qAsConst(strangers)) {
        const Invoice* invoice = bill->getInvoice();
        const EntityUser* user =
            qobject_cast<EntityUser*>(service<BusinessUser>("User")->find(invoice->getCreatedBy()));
        bills.append(tr("%1 of %2, by %3 at %4")
                         .arg(invoice->getInvoiceNo(), invoice->getGrandTotal()->toCurrencyString(),
                              user ? user->getUserName() : QString(),
                              invoice->getCreatedTime().time().toString("HH:mm")));
    }
    const QString told = tr("This order was billed meanwhile: %1. Nothing was saved.").arg(bills.join("; "));
    if (!ask(told + "\r\n" + tr("Do you want to open that bill?")))
        return true;
    EntityInvoiceLink* chosen = strangers.size() == 1 ? strangers.first() : choose(strangers);
    if (chosen) {
        for (const EntityInvoiceLink* bill : qAsConst(strangers))
            m_knownBills.append(bill->getInvoice()->getId());
        setEntity(chosen);
    }
    return true;
}

bool OrderPaymentDialog::readStored()
{
    const EntityPoolScope scope(m_read);
    EntityInvoiceLink* fresh = readSale(m_sale->getId());
    if (fresh)
        setEntity(fresh);
    return fresh;
}

bool OrderPaymentDialog::readSaved()
{
    const KorErrorScope errors(sales());
    if (readStored())
        return true;
    if (errors.failed())
        return UnfinishedSave{UnfinishedSave::saved(m_sale->getInvoice()->getInvoiceNo()), tr("reading it again"),
                              QString(), [this] { return readStored(); }}
            .offer(this, sales());
    showMissing(m_sale->getId());
    return false;
}

bool OrderPaymentDialog::readAgain()
{
    const bool done = readStored();
    if (!done)
        showMissing(m_sale->getId());
    return done;
}

void OrderPaymentDialog::showMissing(int id)
{
    if (!showError(sales()->takeErrors()))
        showError(tr("Can not find entity with id: %1").arg(id));
}

void OrderPaymentDialog::saveAndPrint(QWidget* button)
{
    // A shortcut presses the button while another box has the focus; moving the focus commits that box's value.
    button->setFocus();
    m_print = true;
    accept();
}

// --- the end of the order ------------------------------------------------------------------------------------------

void OrderPaymentDialog::offerToFinish()
{
    if (m_order->getStatus() == EntityOrder::PAID && ask(texts().finish) && finishOrder())
        readAgain();
}

bool OrderPaymentDialog::mayEnd()
{
    // Read again: a waiter may have changed the order while this form was open.
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QObject lines;
    const KorErrorScope errors(sales());
    const EntityOrder* fresh = readOrder(m_order->getId());
    const QList<EntityInvoiceLink*> bills = fresh ? readInvoices(m_order->getId()) : QList<EntityInvoiceLink*>();
    if (!fresh || errors.failed()) {
        showMissing(m_order->getId());
        return false;
    }
    const BillDifference difference = differenceOf(*fresh, linesOf(bills), &lines);
    return difference.isEmpty() ||
           QMessageBox::question(this, tr("Question"),
                                 difference.text() + "\r\n" + tr("Do you want to end this order all the same?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool OrderPaymentDialog::finishOrder()
{
    if (!mayEnd())
        return false;
    if (finish(m_order))
        return true;
    showError(sales()->takeErrors());
    return false;
}

void OrderPaymentDialog::on_btnFinish_clicked()
{
    if (!isStored()) {
        QMessageBox::critical(this, tr("Error"), texts().notSavedYet);
        return;
    }
    if (finishOrder())
        reject();
}
