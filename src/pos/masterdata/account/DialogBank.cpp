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
    edits<EntityBank>(
        {{m_ui->lblBankID, "Id"}, {m_ui->txtKode, "Kode"}, {m_ui->txtNama, "Nama"}, {m_ui->ddlType, "AccountType"}});
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

void DialogBank::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    // An unknown type selects the first entry, which is then saved as the account's type.
    if (m_ui->ddlType->currentIndex() < 0)
        m_ui->ddlType->setCurrentIndex(0);
}
