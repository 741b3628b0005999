#include "pos/cash/ledger/DialogCashFlow.h"

#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/EntityCashFlow.h"
#include "pos/masterdata/account/AccountField.h"

#include "ui_DialogCashFlow.h"

DialogCashFlow::DialogCashFlow(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogCashFlow>())
{
    m_ui->setupUi(this);
    const AppContext* context = AppContext::instance();
    m_ui->txtOperator->setText(context->currentUser() ? context->currentUser()->getUserName() : QString());
    m_ui->datePayment->setDisplayFormat(context->dateFormat());
    m_ui->datePayment->setDate(QDate::currentDate());
    m_ui->ddlType->addItem(tr("DEBET"), CashFlowFilter::DebitRows);
    m_ui->ddlType->addItem(tr("CREDIT"), CashFlowFilter::CreditRows);
    m_account = new AccountField(m_ui->txtAccount, m_ui->lblAccountName, this);
    connect(m_account, &AccountField::chosen, this, &DialogCashFlow::onBankSelected);
    edits<EntityCashFlow>({{m_ui->txtNoTrans, "TransNo"}, {m_ui->datePayment, "Date"}, {m_ui->txtNotes, "Notes"}});
    focusLater(m_ui->txtAccount);
}

DialogCashFlow::~DialogCashFlow() = default;

void DialogCashFlow::onBankSelected()
{
    // Do not move the focus if the user has already gone to another field.
    if (m_ui->txtAccount->hasFocus())
        m_ui->txtPaid->setFocus();
}

bool DialogCashFlow::validate()
{
    const QString unknown = tr("There is no account with the code: %1").arg(m_ui->txtAccount->text());
    m_account->check(tr("Select account code"), unknown);
    if (m_ui->txtPaid->isNothing())
        addError(m_ui->txtPaid, tr("Enter the amount paid"));
    if (!m_ui->datePayment->date().isValid())
        addError(m_ui->datePayment, tr("Enter valid date"));
    return !hasError();
}

KorEntity* DialogCashFlow::getEntity()
{
    KorDialog::getEntity();
    auto* entry = held<EntityCashFlow>();
    if (const EntityBank* account = m_account->record())
        entry->setAccountCode(account->getKode());
    const bool isDebit = m_ui->ddlType->currentData().toInt() == CashFlowFilter::DebitRows;
    entry->setTransType(isDebit ? tr("DEBET") : tr("CREDIT"));
    Money* amount = m_ui->txtPaid->money();
    const Money nothing(nullptr, 0, amount->getCurrency());
    entry->setDebet(isDebit ? amount->copy(entry) : nothing.copy(entry));
    entry->setCredit(isDebit ? nothing.copy(entry) : amount->copy(entry));
    return entry;
}

void DialogCashFlow::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    const auto* entry = held<EntityCashFlow>();
    const bool isDebit = entry->getDebet() && entry->getDebet()->rawAmount() != 0;
    m_ui->ddlType->setCurrentIndex(
        m_ui->ddlType->findData(isDebit ? CashFlowFilter::DebitRows : CashFlowFilter::CreditRows));
    m_ui->txtPaid->setMoney(isDebit ? entry->getDebet() : entry->getCredit());
    m_account->showCode(entry->getAccountCode());
}
