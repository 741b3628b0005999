#include "pos/purchasing/payment/DialogPayment.h"

#include "app/money/MinorUnits.h"
#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/supplier/SupplierTextBox.h"
#include "pos/purchasing/payment/EntityPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/totals/InvoiceTotals.h"

#include "ui_DialogPayment.h"

#include <QHash>
#include <QMessageBox>

DialogPayment::DialogPayment(QWidget* parent)
    : PartPaymentsDialog(parent), m_ui(std::make_unique<Ui::DialogPayment>()),
      m_purchases(service<BusinessPurchases>("Purchases"))
{
    m_ui->setupUi(this);
    offerTypes(*m_ui, supplierPaymentTypeRows());
    auto* suppliers = new SupplierTextBox(m_ui->txtSupplier, service<BusinessSupplier>("Supplier"));
    suppliers->setNextWidget(m_ui->txtCashAccount);
    setUpSettlement({new RecordField<EntitySupplier>(suppliers, m_ui->txtSupplierName, this), m_ui->datePay,
                     m_ui->txtCashAccount, m_ui->lblCashAccount, m_ui->tabDetail, m_ui->txtGrandTotal, m_ui->buttonBox},
                    {tr("Select a supplier"), {}, {}, {}, tr("Please select a valid Cash Accounts")}, m_ui->tabInvoices,
                    m_purchases);
    addLinesPage(m_ui->tabExpenses, Qt::Key_F4);
    editsPayment<EntityPayment>(*m_ui);
    connect(accountField(), &AccountField::chosen, this, &DialogPayment::onCashAccountSelected);
    focusLater(m_ui->txtSupplier);
}

DialogPayment::~DialogPayment() = default;

void DialogPayment::onCashAccountSelected()
{
    // Do not move the focus if the user has already gone to another field.
    if (m_ui->txtCashAccount->hasFocus())
        m_ui->ddlPaymentType->setFocus(Qt::TabFocusReason);
}

void DialogPayment::showPerson(const EntityContact* person)
{
    m_ui->txtSupplierAddress->setText(person ? person->getAlamat() : QString());
    m_ui->txtSupplierPhone->setText(person ? person->getTelp() : QString());
}

QList<KorEntity*> DialogPayment::readOpenLines(const EntityContact& person)
{
    QList<KorEntity*> lines;
    const auto open = m_purchases->getPendingInvoiceBySupplier(static_cast<const EntitySupplier*>(&person));
    for (EntityAcquisition* purchase : open) {
        auto* line = new EntityPaymentInvoices(AppDataMapper::entityParent());
        line->setAcquisition(purchase);
        line->setAmountDue(purchase->getNetDue());
        line->setAmountPaid(minorUnits(0, purchase->getNetDue()->getCurrency()).get());
        lines.append(line);
    }
    return lines;
}

// --- what is paid --------------------------------------------------------------------------------------------------

qint64 DialogPayment::furtherAmount() const
{
    qint64 total = 0;
    for (const KorEntity* line : m_ui->tabExpenses->lines())
        total += static_cast<const EntityPaymentExpenses*>(line)->getAmount()->rawAmount();
    return total;
}

void DialogPayment::checkLines()
{
    const QList<KorEntity*>& expenses = m_ui->tabExpenses->lines();
    for (const KorEntity* entity : expenses) {
        const auto* line = static_cast<const EntityPaymentExpenses*>(entity);
        if (line->getQty() <= 0)
            addError(
                m_ui->tabDetail,
                tr("The quantity received for this item: %1 should be more than zero").arg(line->getItem()->getNama()));
    }
    if (person() && expenses.isEmpty() && m_ui->tabInvoices->paidLines().isEmpty())
        addError(m_ui->tabDetail, tr("Enter the amount paid for one or more purchase invoices, or add an item"));
}

QString DialogPayment::changedPurchase() const
{
    EntityPool read;
    const EntityPoolScope scope(read);
    QHash<int, int> dueNow;
    const auto open = m_purchases->getPendingInvoiceBySupplier(static_cast<EntitySupplier*>(person()));
    for (const EntityAcquisition* purchase : open)
        dueNow.insert(purchase->getId(), purchase->getNetDue()->rawAmount());
    const QList<KorEntity*> paid = m_ui->tabInvoices->paidLines();
    for (const KorEntity* line : paid) {
        const EntityAcquisition* shown = static_cast<const EntityPaymentInvoices*>(line)->getAcquisition();
        // A stored line is already paid, so it is not checked.
        if (!line->isSaved() && dueNow.value(shown->getId()) < shown->getNetDue()->rawAmount())
            return shown->getNo();
    }
    return {};
}

bool DialogPayment::beforeAccept()
{
    KorErrorScope errors(m_purchases);
    const QString changed = changedPurchase();
    if (showError(errors.take()))
        return false;
    const QString question =
        tr("Purchase invoice no: %1 was paid or changed by somebody else meanwhile. Do you want to "
           "pay it all the same?");
    if (changed.isEmpty() ||
        QMessageBox::question(this, tr("Question"), question.arg(changed), QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes)
        return PartPaymentsDialog::beforeAccept();
    readAgain();
    return false;
}

// --- the record ----------------------------------------------------------------------------------------------------

void DialogPayment::setEntity(KorEntity* entity)
{
    PartPaymentsDialog::setEntity(entity);
    auto* payment = held<EntityPayment>();
    // The current amounts: other payments may have paid the same purchases since.
    for (EntityPaymentInvoices* line : payment->invoices().getDetails())
        line->setAmountDue(line->getAcquisition()->getNetDue());
    for (EntityPaymentExpenses* line : payment->expenses().getDetails()) {
        // Only the amount of the discount is stored.
        const double gross = double(line->getAmount()->rawAmount()) + line->getDiscount()->rawAmount();
        if (gross > 0)
            line->setDiscountPercentage(InvoiceTotals::percentOf(line->getDiscount()->rawAmount(), gross));
    }
    m_ui->tabExpenses->setLines(asEntities(payment->expenses().getDetails()));
    if (payment->invoices().getDetails().isEmpty())
        m_ui->tabDetail->setCurrentWidget(m_ui->tabExpenses);
    showStored(payment->getSupplier(), asEntities(payment->invoices().getDetails()), true);
}

KorEntity* DialogPayment::getEntity()
{
    PartPaymentsDialog::getEntity();
    auto* payment = held<EntityPayment>();
    payment->setSupplier(static_cast<EntitySupplier*>(person()));
    const QList<KorEntity*> paid = m_ui->tabInvoices->paidLines();
    payment->invoices().setDetails(castAll<EntityPaymentInvoices>(paid));
    payment->invoices().setRemovedDetails(castAll<EntityPaymentInvoices>(removedLines(paid)));
    payment->expenses().setDetails(castAll<EntityPaymentExpenses>(m_ui->tabExpenses->lines()));
    payment->expenses().setRemovedDetails(castAll<EntityPaymentExpenses>(m_ui->tabExpenses->removedLines()));
    return payment;
}
