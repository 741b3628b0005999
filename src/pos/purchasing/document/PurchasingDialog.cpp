#include "pos/purchasing/document/PurchasingDialog.h"

#include "app/context/AppContext.h"
#include "app/widgets/AppLinesTab.h"
#include "app/widgets/MoneyEdit.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/supplier/SupplierTextBox.h"
#include "pos/purchasing/document/PurchasingTotalsPane.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QShortcut>
#include <QTabWidget>

void PurchasingDialog::setUpPurchasing(const Form& form, const Words& words, const QString& accountCode)
{
    m_form = form;
    m_words = words;
    m_cascade = new TotalsCascade(form.totals->boxes(), this);
    m_cascade->keepPercentsOfNothing();
    m_account = new AccountField(form.totals->accountBox(), form.totals->accountName(), this);
    connect(m_account, &AccountField::changed, this, &PurchasingDialog::noteWhatCashMisses);
    m_account->showCode(accountCode);
    auto* suppliers = new SupplierTextBox(form.supplier, service<BusinessSupplier>("Supplier"));
    m_supplier = new RecordField<EntitySupplier>(suppliers, form.supplierName, this);
    m_supplier->lookUpWhenLeft();
    connect(m_supplier, &RecordFieldBase::chosen, m_supplier, &RecordFieldBase::writeCode);
    connect(m_supplier, &RecordFieldBase::changed, this, &PurchasingDialog::onSupplierSelected);
    for (QDateEdit* date : form.dates) {
        date->setCalendarPopup(true);
        date->setDisplayFormat(AppContext::instance()->dateFormat());
        date->setDate(QDate::currentDate());
    }
    m_cascade->clear();
    focusLater(form.supplier);
}

void PurchasingDialog::addLinesPage(AppLinesTab* page, const QString& title, Qt::Key key)
{
    m_form.pages->addTab(page, title);
    connect(page, &AppLinesTab::ItemAdded, this, &PurchasingDialog::onItemAdded);
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, page] {
        m_form.pages->setCurrentWidget(page);
        page->focusLines();
    });
}

// --- the supplier --------------------------------------------------------------------------------------------------

void PurchasingDialog::onSupplierSelected()
{
    const EntitySupplier* chosen = supplier();
    m_form.supplierAddress->setText(chosen ? chosen->getAlamat() : QString());
    m_form.supplierPhone->setText(chosen ? chosen->getTelp() : QString());
    supplierChanged();
}

EntitySupplier* PurchasingDialog::supplier() const { return m_supplier->record(); }

QObject* PurchasingDialog::supplierField() const { return m_supplier; }

// --- the money -----------------------------------------------------------------------------------------------------

void PurchasingDialog::onItemAdded()
{
    double subtotal = 0;
    const PurchasingLines lines = allLines();
    for (const EntityPurchasingLine* line : lines) {
        if (line->lineTotal())
            subtotal += double(line->lineTotal()->rawAmount()) / line->lineTotal()->factor();
    }
    m_cascade->setSubtotal(subtotal);
}

void PurchasingDialog::on_txtPaid_textChanged(const QString&)
{
    m_cascade->calculateTotal();
    noteWhatCashMisses();
}

void PurchasingDialog::noteWhatCashMisses()
{
    const EntityBank* account = m_account->record();
    const bool isMissed = account && account->getAccountType() != CashAccount && totals().paid() > 0;
    m_form.totals->setNote(isMissed ? tr("The account is not of the type Cash: the day's close does not count the "
                                         "amount paid.")
                                    : QString());
}

void PurchasingDialog::on_txtDiscPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Discount); }

void PurchasingDialog::on_txtDiscount_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Discount); }

void PurchasingDialog::on_txtTaxPerc_editingFinished() { m_cascade->percentEntered(InvoiceTotals::Tax); }

void PurchasingDialog::on_txtTax_editingFinished() { m_cascade->amountEntered(InvoiceTotals::Tax); }

void PurchasingDialog::showTotals(const InvoiceTotals& stored) { m_cascade->show(stored); }

const InvoiceTotals& PurchasingDialog::totals()
{
    m_cascade->calculateTotal();
    return m_cascade->totals();
}

QObject* PurchasingDialog::accountField() const { return m_account; }

// --- saving --------------------------------------------------------------------------------------------------------

bool PurchasingDialog::validate()
{
    m_supplier->check(m_words.noSupplier, m_words.noSupplier);
    checkLines();
    checkMoney();
    m_account->check(m_words.noAccount, m_words.unknownAccount);
    checkAmounts();
    return !hasError();
}

void PurchasingDialog::checkLines()
{
    if (allLines().isEmpty())
        addError(m_form.pages, m_words.noLine);
}

void PurchasingDialog::checkAmounts()
{
    if (!checkNumbers())
        return;
    const InvoiceTotals& figures = totals();
    m_cascade->checkDiscount(*this);
    const QString tooLarge = tr("An amount is larger than a document can hold. Please check the figures.");
    const PurchasingLines lines = allLines();
    for (const EntityPurchasingLine* line : lines) {
        if (!line->totalFits()) {
            addError(m_form.pages, tooLarge);
            return;
        }
    }
    if (!figures.fits())
        addError(m_form.pages, tooLarge);
}
