#include "inventory/adjustment/DialogInventoryAdj.h"

#include "app/context/AppContext.h"
#include "inventory/stock/BusinessInventory.h"
#include "inventory/stock/EntityStockTake.h"
#include "inventory/stock/QuantityEntry.h"
#include "kor/business/KorServiceDirectory.h"
#include "masterdata/bank/BankTextBox.h"
#include "masterdata/item/ItemEntry.h"

#include "ui_DialogInventoryAdj.h"

#include <QPushButton>

DialogInventoryAdj::DialogInventoryAdj(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogInventoryAdj>())
{
    m_ui->setupUi(this);
    m_item = new ItemEntry(m_ui->txtKode, m_ui->txtNama);
    m_item->setNextWidget(m_ui->txtStok);
    connect(m_item, &ItemEntry::chosen, this, &DialogInventoryAdj::onItemSelected);
    m_sources = new BankTextBox(m_ui->txtSourceAccount, service<BusinessBank>("Bank"));
    m_sources->setNextWidget(m_ui->buttonBox->button(QDialogButtonBox::Ok));
    connect(m_sources, &KorTextBoxExtender::onItemSelected, this, &DialogInventoryAdj::onSourceSelected);
    m_ui->ddlReason->addItem(tr("Broken"), Broken);
    m_ui->ddlReason->addItem(tr("Loss"), Loss);
    m_ui->ddlReason->addItem(tr("Other"), Other);
    m_ui->dateQtyOnHand->setDisplayFormat(AppContext::instance()->dateFormat());
    m_ui->dateQtyOnHand->setDate(QDate::currentDate());
    focusLater(m_ui->txtKode);
}

DialogInventoryAdj::~DialogInventoryAdj() = default;

bool DialogInventoryAdj::validate()
{
    if (!m_item->item())
        addError(m_ui->txtKode, tr("Enter the item code"));
    else if (m_ui->txtQtyOnHand->text().isEmpty())
        addError(m_ui->dateQtyOnHand, tr("The quantity on hand is not known, please choose the item again"));
    const int adjustment = enteredQuantity(*m_ui->txtStok).value_or(0);
    if (adjustment == 0)
        addError(m_ui->txtStok, tr("Enter the qty adjustment of the item"));
    else if (std::abs(qint64(m_before) + adjustment) > largestQuantity)
        addError(m_ui->txtStok, tr("The new qty is more than can be counted"));
    if (requireText(m_ui->txtSourceAccount, m_ui->txtSourceAccount->text().trimmed(), tr("Select GL Source Account"))) {
        const EntityBank* source = readSource();
        if (!source)
            addError(m_ui->txtSourceAccount, tr("Select a valid GL Source Account"));
        m_sourceCode = source ? source->getKode() : QString();
    }
    return !hasError();
}

KorEntity* DialogInventoryAdj::getEntity()
{
    auto* take = heldOrNew<EntityStockTake>();
    const int adjustment = enteredQuantity(*m_ui->txtStok).value_or(0);
    take->setItem(m_item->item());
    take->setStockTakeDate(m_ui->dateQtyOnHand->date());
    take->setQtyBefore(m_before);
    take->setQtyAdj(adjustment);
    take->setQty(m_before + adjustment);
    take->setReason(reason());
    take->setSourceAcctCode(m_sourceCode);
    return take;
}

void DialogInventoryAdj::setEntity(KorEntity* entity) { hold(entity); }

// --- the item and its quantities -----------------------------------------------------------------------------------

void DialogInventoryAdj::onItemSelected(EntityItem* item)
{
    readQuantityBefore();
    if (!item)
        return;
    m_ui->txtSourceAccount->setText(item->getCostOfSalesAcctCode());
    showSource(readSource());
}

void DialogInventoryAdj::readQuantityBefore()
{
    const EntityItem* item = m_item->item();
    m_before = 0;
    m_ui->txtQtyOnHand->clear();
    if (item) {
        auto* inventory = service<BusinessInventory>("Inventory");
        m_before = inventory->getQuantityOnHand(item, m_ui->dateQtyOnHand->date());
        if (inventory->hasError())
            showError(inventory->takeErrors());
        else
            m_ui->txtQtyOnHand->setText(m_ui->txtStok->locale().toString(m_before));
    }
    showNewQuantity();
}

void DialogInventoryAdj::showNewQuantity()
{
    const auto adjustment = enteredQuantity(*m_ui->txtStok);
    const bool isKnown = adjustment && !m_ui->txtQtyOnHand->text().isEmpty();
    m_ui->txtNewQty->setText(isKnown ? m_ui->txtStok->locale().toString(qint64(m_before) + *adjustment) : QString());
}

// --- reason and account --------------------------------------------------------------------------------------------

void DialogInventoryAdj::on_ddlReason_currentIndexChanged(int)
{
    const bool isOther = m_ui->ddlReason->currentData().toInt() == Other;
    m_ui->txtOtherReason->setEnabled(isOther);
}

QString DialogInventoryAdj::reason() const
{
    return m_ui->ddlReason->currentData().toInt() == Other ? m_ui->txtOtherReason->text()
                                                           : m_ui->ddlReason->currentText();
}

void DialogInventoryAdj::onSourceSelected() { showSource(m_sources->selectedItem()); }

void DialogInventoryAdj::on_txtSourceAccount_textEdited() { m_ui->lblSource->clear(); }

void DialogInventoryAdj::on_txtSourceAccount_editingFinished()
{
    if (m_ui->lblSource->text().isEmpty() && !m_ui->txtSourceAccount->text().trimmed().isEmpty())
        showSource(readSource());
}

EntityBank* DialogInventoryAdj::readSource()
{
    const QString code = m_ui->txtSourceAccount->text().trimmed();
    if (code.isEmpty())
        return nullptr;
    const EntityPoolScope scope(m_read);
    auto* accounts = service<BusinessBank>("Bank");
    EntityBank* account = accounts->findByCode(code);
    if (accounts->hasError())
        showError(accounts->takeErrors());
    return account;
}

void DialogInventoryAdj::showSource(const EntityBank* account)
{
    // A list that came up now would take the next field's keys.
    m_sources->preventSuggest();
    m_ui->lblSource->setText(account ? account->getNama() : QString());
}
