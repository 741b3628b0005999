#include "pos/masterdata/account/DialogBank.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/BusinessBank.h"

#include "ui_DialogBank.h"

DialogBank::DialogBank(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogBank>())
{
    m_ui->setupUi(this);
    m_ui->ddlType->addItem(tr("Cash"), CashAccount);
    m_ui->ddlType->addItem(tr("Cost of Sales"), CostOfSalesAccount);
    m_ui->ddlType->addItem(tr("Inventory"), InventoryAccount);
    m_ui->ddlType->addItem(tr("Accounts Payable"), AccountsPayableAccount);
    m_ui->ddlType->addItem(tr("Account Receivable"), AccountsReceivableAccount);
    m_ui->ddlType->addItem(tr("Commisions and Fees Expense"), ExpenseAccount);
    focusLater(m_ui->txtKode);
}

DialogBank::~DialogBank() = default;

bool DialogBank::validate()
{
    requireCode(
        m_ui->txtKode, service<BusinessBank>("Bank"),
        [](BusinessBank* accounts, const QString& code) { return accounts->findByCode(code); },
        tr("Enter the account code"), tr("The code you entered is already in use please use another code"));
    require(m_ui->txtNama, tr("Enter the account name"));
    return !hasError();
}

KorEntity* DialogBank::getEntity()
{
    auto* account = heldOrNew<EntityBank>();
    account->setKode(m_ui->txtKode->text());
    account->setNama(m_ui->txtNama->text());
    account->setAccountType(m_ui->ddlType->currentData().toInt());
    return account;
}

void DialogBank::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* account = held<EntityBank>();
    m_ui->lblBankID->setText(QString::number(account->getId()));
    m_ui->txtKode->setText(account->getKode());
    m_ui->txtNama->setText(account->getNama());
    // A type that the form does not offer leaves the first entry, and saving makes it the account's type.
    const int entry = m_ui->ddlType->findData(account->getAccountType());
    if (entry >= 0)
        m_ui->ddlType->setCurrentIndex(entry);
}
