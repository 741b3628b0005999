#include "pos/cash/transfer/DialogTransaction.h"

#include "app/context/AppContext.h"
#include "pos/cash/transfer/EntityAccountingTransaction.h"
#include "pos/masterdata/account/AccountField.h"

#include "ui_DialogTransaction.h"

DialogTransaction::DialogTransaction(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogTransaction>())
{
    m_ui->setupUi(this);
    const AppContext* context = AppContext::instance();
    m_ui->txtOperator->setText(context->currentUser() ? context->currentUser()->getUserName() : QString());
    m_ui->dateTrans->setDisplayFormat(context->dateFormat());
    m_ui->dateTrans->setDate(QDate::currentDate());
    m_from = new AccountField(m_ui->txtFromAccount, m_ui->lblFromAccountName, this);
    m_to = new AccountField(m_ui->txtToAccount, m_ui->lblToAccountName, this);
    connect(m_from, &AccountField::chosen, this, &DialogTransaction::onFromAccountSelected);
    connect(m_to, &AccountField::chosen, this, &DialogTransaction::onToAccountSelected);
    edits<EntityAccountingTransaction>({{m_ui->txtNoTrans, "TransNo"},
                                        {m_ui->dateTrans, "Date"},
                                        {m_ui->txtAmount, "Amount"},
                                        {m_ui->txtNotes, "Notes"},
                                        {m_from, "FromAccount"},
                                        {m_to, "ToAccount"}});
    focusLater(m_ui->txtFromAccount);
}

DialogTransaction::~DialogTransaction() = default;

void DialogTransaction::onFromAccountSelected()
{
    // Do not move the focus if the user has already gone to another field.
    if (m_ui->txtFromAccount->hasFocus())
        m_ui->txtToAccount->setFocus();
}

void DialogTransaction::onToAccountSelected()
{
    if (m_ui->txtToAccount->hasFocus())
        m_ui->txtAmount->setFocus();
}

bool DialogTransaction::validate()
{
    const QString unknown = tr("There is no account with the code: %1");
    const bool fromStands =
        m_from->check(tr("Enter the source account code"), unknown.arg(m_ui->txtFromAccount->text()));
    const bool toStands =
        m_to->check(tr("Enter the destination account code"), unknown.arg(m_ui->txtToAccount->text()));
    if (fromStands && toStands && m_from->id() == m_to->id())
        addError(m_ui->txtToAccount,
                 tr("The source account code should not be the same as the destination account code"));
    if (m_ui->txtAmount->isNothing())
        addError(m_ui->txtAmount, tr("Enter amount paid"));
    if (!m_ui->dateTrans->date().isValid())
        addError(m_ui->dateTrans, tr("Enter date"));
    return !hasError();
}
