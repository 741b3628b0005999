#include "cash/accounting/DialogTransaction.h"

#include "app/context/AppContext.h"
#include "cash/accounting/EntityAccountingTransaction.h"
#include "cash/entry/AccountField.h"
#include "cash/entry/AmountRule.h"
#include "masterdata/bank/BankTextBox.h"

#include "ui_DialogTransaction.h"

DialogTransaction::DialogTransaction(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogTransaction>())
{
    m_ui->setupUi(this);
    const AppContext* context = AppContext::instance();
    m_ui->txtOperator->setText(context->currentUser() ? context->currentUser()->getUserName() : QString());
    m_ui->dateTrans->setDisplayFormat(context->dateFormat());
    m_ui->dateTrans->setDate(QDate::currentDate());
    m_fromField = new AccountField(m_ui->txtFromAccount, m_ui->lblFromAccountName, this);
    m_toField = new AccountField(m_ui->txtToAccount, m_ui->lblToAccountName, this);
    m_fromField->box()->setNextWidget(m_ui->txtToAccount);
    m_toField->box()->setNextWidget(m_ui->txtAmount);
    connect(m_fromField->box(), &BankTextBox::onItemSelected, this, &DialogTransaction::onFromAccountSelected);
    connect(m_toField->box(), &BankTextBox::onItemSelected, this, &DialogTransaction::onToAccountSelected);
    focusLater(m_ui->txtFromAccount);
}

DialogTransaction::~DialogTransaction() = default;

void DialogTransaction::onFromAccountSelected() { m_fromField->showPicked(); }

void DialogTransaction::onToAccountSelected() { m_toField->showPicked(); }

bool DialogTransaction::validate()
{
    m_from = m_fromField->require(*this, tr("Enter the source account code"));
    m_to = m_toField->require(*this, tr("Enter the destination account code"));
    if (m_from && m_to && m_from->getId() == m_to->getId())
        addError(m_ui->txtToAccount,
                 tr("The source account code should not be the same as the destination account code"));
    requireAmount(*this, m_ui->txtAmount, tr("Enter amount paid"));
    if (!m_ui->dateTrans->date().isValid())
        addError(m_ui->dateTrans, tr("Enter date"));
    return !hasError();
}

KorEntity* DialogTransaction::getEntity()
{
    auto* transfer = heldOrNew<EntityAccountingTransaction>();
    transfer->setFromAccount(m_from);
    transfer->setToAccount(m_to);
    transfer->setAmount(m_ui->txtAmount->money());
    transfer->setDate(m_ui->dateTrans->date());
    transfer->setNotes(m_ui->txtNotes->toPlainText());
    return transfer;
}

void DialogTransaction::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* transfer = held<EntityAccountingTransaction>();
    m_ui->txtNoTrans->setText(transfer->getTransNo());
    m_ui->dateTrans->setDate(transfer->getDate());
    m_ui->txtAmount->setMoney(transfer->getAmount());
    m_ui->txtNotes->setPlainText(transfer->getNotes());
    m_fromField->show(transfer->getFromAccount());
    m_toField->show(transfer->getToAccount());
}
