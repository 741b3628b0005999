#include "pos/inventory/adjustment/DialogInventoryAdj.h"

#include "app/context/AppContext.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/item/ItemField.h"

#include "ui_DialogInventoryAdj.h"

#include <QMessageBox>
#include <QPushButton>

DialogInventoryAdj::DialogInventoryAdj(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogInventoryAdj>())
{
    m_ui->setupUi(this);
    m_item = new ItemField(m_ui->txtKode, m_ui->txtNama, this);
    connect(m_item, &ItemField::chosen, this, &DialogInventoryAdj::onItemSelected);
    // The user has typed another code: the shown quantity is no longer right.
    connect(m_ui->txtKode, &QLineEdit::textEdited, this, &DialogInventoryAdj::readQuantityBefore);
    m_source = new AccountField(m_ui->txtSourceAccount, m_ui->lblSource, this);
    m_source->box()->setNextWidget(m_ui->buttonBox->button(QDialogButtonBox::Ok));
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
    const bool isItem = m_item->check(tr("Enter the item code"), tr("Enter the item code"));
    if (isItem && m_ui->txtQtyOnHand->text().isEmpty())
        readQuantityBefore();
    if (isItem && m_ui->txtQtyOnHand->text().isEmpty())
        addError(m_ui->txtKode, tr("The quantity on hand is not known, please choose the item again"));
    const double adjustment = m_ui->txtStok->value();
    if (!m_ui->txtStok->isValid() || qFuzzyIsNull(adjustment))
        addError(m_ui->txtStok, tr("Enter the qty adjustment of the item"));
    else if (std::abs(m_before + adjustment) > QuantityEdit::largest)
        addError(m_ui->txtStok, tr("The new qty is more than can be counted"));
    m_source->check(tr("Select GL Source Account"), tr("Select a valid GL Source Account"));
    return !hasError();
}

bool DialogInventoryAdj::beforeAccept() { return settleDay() && KorDialog::beforeAccept(); }

bool DialogInventoryAdj::settleDay()
{
    auto* inventory = service<BusinessInventory>("Inventory");
    const QDate day = m_ui->dateQtyOnHand->date();
    KorErrorScope errors(inventory);
    const BusinessInventory::Movements moved = inventory->movementsOf(m_item->record(), day);
    if (showError(errors.take()))
        return false;
    if (moved.isEmpty())
        return true;
    const QLocale locale = m_ui->txtStok->locale();
    const QString format = AppContext::instance()->dateFormat();
    const QDate next = day.addDays(1);
    const QString text = tr("On %1 %2 of this item were bought, %3 sold and %4 returned. They count on top of an "
                            "adjustment of that day, "
                            "although the quantity on hand that you see includes them.")
                             .arg(locale.toString(day, format), locale.toString(moved.acquired),
                                  locale.toString(moved.used), locale.toString(moved.returned));
    const auto answer = QMessageBox::question(
        this, tr("Question"), text + "\r\n" + tr("Do you want to date it on %1?").arg(locale.toString(next, format)),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (answer != QMessageBox::Yes)
        return answer == QMessageBox::No;
    const int before = m_before;
    m_ui->dateQtyOnHand->setDate(next);
    // If the new day has another quantity on hand, the user must see it before saving.
    return m_before == before && !m_ui->txtQtyOnHand->text().isEmpty();
}

KorEntity* DialogInventoryAdj::getEntity()
{
    auto* take = heldOrNew<EntityStockTake>();
    const int adjustment = m_ui->txtStok->quantity().value_or(0);
    take->setItem(m_item->record());
    take->setStockTakeDate(m_ui->dateQtyOnHand->date());
    take->setQtyBefore(m_before);
    take->setQtyAdj(adjustment);
    take->setQty(m_before + adjustment);
    take->setReason(reason());
    if (const EntityBank* source = m_source->record())
        take->setSourceAcctCode(source->getKode());
    return take;
}

void DialogInventoryAdj::setEntity(KorEntity* entity) { hold(entity); }

// --- the item and its quantities -----------------------------------------------------------------------------------

void DialogInventoryAdj::onItemSelected()
{
    readQuantityBefore();
    if (!m_item->record())
        return;
    m_source->showCode(m_item->record()->getCostOfSalesAcctCode());
    if (m_ui->txtKode->hasFocus())
        m_ui->txtStok->setFocus(Qt::TabFocusReason);
}

void DialogInventoryAdj::readQuantityBefore()
{
    const EntityItem* item = m_item->record();
    m_before = 0;
    m_ui->txtQtyOnHand->clear();
    if (item) {
        auto* inventory = service<BusinessInventory>("Inventory");
        KorErrorScope errors(inventory);
        m_before = inventory->getQuantityOnHand(item, m_ui->dateQtyOnHand->date());
        if (!showError(errors.take()))
            m_ui->txtQtyOnHand->setText(m_ui->txtStok->locale().toString(m_before));
    }
    showNewQuantity();
}

void DialogInventoryAdj::showNewQuantity()
{
    const auto adjustment = m_ui->txtStok->quantity();
    const bool isKnown = adjustment && !m_ui->txtQtyOnHand->text().isEmpty();
    m_ui->txtNewQty->setText(isKnown ? m_ui->txtStok->locale().toString(qint64(m_before) + *adjustment) : QString());
}

// --- reason ---------------------------------------------------------------------------------------------------------

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
