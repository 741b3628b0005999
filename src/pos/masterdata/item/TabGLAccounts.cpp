#include "pos/masterdata/item/TabGLAccounts.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/BankTextBox.h"

#include "ui_TabGLAccounts.h"

TabGLAccounts::TabGLAccounts(QWidget* parent) : QWidget(parent), m_ui(std::make_unique<Ui::TabGLAccounts>())
{
    m_ui->setupUi(this);
    prepare(m_sales, m_ui->txtSalesAccount, m_ui->lblSales);
    prepare(m_inventory, m_ui->txtInvAccount, m_ui->lblInventory);
    prepare(m_costOfSales, m_ui->txtCostOfSalesAccount, m_ui->lblCostOfSales);
    setFocusProxy(m_sales.editor);
    m_sales.box->setNextWidget(m_inventory.editor);
    m_inventory.box->setNextWidget(m_costOfSales.editor);
    m_costOfSales.box->setNextWidget(m_sales.editor);
    connect(m_sales.box, &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onSalesSelected);
    connect(m_inventory.box, &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onInventorySelected);
    connect(m_costOfSales.box, &KorTextBoxExtender::onItemSelected, this, &TabGLAccounts::onCostOfSalesSelected);
}

TabGLAccounts::~TabGLAccounts() = default;

void TabGLAccounts::prepare(Field& field, QLineEdit* editor, QLabel* name)
{
    field.editor = editor;
    field.name = name;
    field.box = new BankTextBox(editor, service<BusinessBank>("Bank"));
    connect(editor, &QLineEdit::textEdited, this, [&field] {
        field.code.clear();
        field.name->clear();
    });
    connect(editor, &QLineEdit::editingFinished, this, [&field] { codeOf(field); });
}

void TabGLAccounts::show(Field& field, const EntityBank* account)
{
    field.code = account ? account->getKode() : QString();
    // A list that came up now would take the next field's keys.
    field.box->preventSuggest();
    field.editor->setText(field.code);
    field.name->setText(account ? account->getNama() : QString());
}

QString TabGLAccounts::codeOf(Field& field)
{
    if (field.code.isEmpty() && !field.editor->text().isEmpty()) {
        EntityPool pool;
        const EntityPoolScope scope(pool);
        auto* accounts = service<BusinessBank>("Bank");
        if (const EntityBank* account = accounts->findByCode(field.editor->text()))
            show(field, account);
        accounts->clearErrors();
    }
    return field.code;
}

void TabGLAccounts::setSalesAccount(const EntityBank* account) { show(m_sales, account); }

void TabGLAccounts::setInventoryAccount(const EntityBank* account) { show(m_inventory, account); }

void TabGLAccounts::setCostOfSalesAccount(const EntityBank* account) { show(m_costOfSales, account); }

void TabGLAccounts::onSalesSelected() { setSalesAccount(m_sales.box->selectedItem()); }

void TabGLAccounts::onInventorySelected() { setInventoryAccount(m_inventory.box->selectedItem()); }

void TabGLAccounts::onCostOfSalesSelected() { setCostOfSalesAccount(m_costOfSales.box->selectedItem()); }
