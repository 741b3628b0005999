#include "pos/masterdata/item/TabGLAccounts.h"

#include "kor/widgets/KorDialog.h"
#include "pos/masterdata/account/AccountField.h"

#include "ui_TabGLAccounts.h"

namespace
{
QString codeOf(const AccountField* field) { return field->record() ? field->record()->getKode() : QString(); }
} // namespace

TabGLAccounts::TabGLAccounts(KorDialog* form) : QWidget(form), m_ui(std::make_unique<Ui::TabGLAccounts>())
{
    m_ui->setupUi(this);
    m_sales = new AccountField(m_ui->txtSalesAccount, m_ui->lblSales, form);
    m_inventory = new AccountField(m_ui->txtInvAccount, m_ui->lblInventory, form);
    m_costOfSales = new AccountField(m_ui->txtCostOfSalesAccount, m_ui->lblCostOfSales, form);
    setFocusProxy(m_ui->txtSalesAccount);
    m_sales->box()->setNextWidget(m_ui->txtInvAccount);
    m_inventory->box()->setNextWidget(m_ui->txtCostOfSalesAccount);
    m_costOfSales->box()->setNextWidget(m_ui->txtSalesAccount);
    connect(m_sales->box(), &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onSalesSelected);
    connect(m_inventory->box(), &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onInventorySelected);
    connect(m_costOfSales->box(), &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onCostOfSalesSelected);
}

TabGLAccounts::~TabGLAccounts() = default;

void TabGLAccounts::check(const QString& noSales, const QString& noInventory, const QString& noCostOfSales)
{
    m_sales->check(noSales, noSales);
    // If the database does not answer, report that once and not per field.
    if (m_sales->couldAsk())
        m_inventory->check(noInventory, noInventory);
    if (m_sales->couldAsk() && m_inventory->couldAsk())
        m_costOfSales->check(noCostOfSales, noCostOfSales);
}

QString TabGLAccounts::salesAccountCode() const { return codeOf(m_sales); }

QString TabGLAccounts::inventoryAccountCode() const { return codeOf(m_inventory); }

QString TabGLAccounts::costOfSalesAccountCode() const { return codeOf(m_costOfSales); }

void TabGLAccounts::setSalesAccount(EntityBank* account) { m_sales->show(account); }

void TabGLAccounts::setInventoryAccount(EntityBank* account) { m_inventory->show(account); }

void TabGLAccounts::setCostOfSalesAccount(EntityBank* account) { m_costOfSales->show(account); }

void TabGLAccounts::onSalesSelected() { setSalesAccount(m_sales->record()); }

void TabGLAccounts::onInventorySelected() { setInventoryAccount(m_inventory->record()); }

void TabGLAccounts::onCostOfSalesSelected() { setCostOfSalesAccount(m_costOfSales->record()); }
