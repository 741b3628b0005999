#include "pos/purchasing/creditnote/DialogCreditNote.h"

#include "app/widgets/MoneyEdit.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/purchasing/creditnote/EntityCreditNote.h"
#include "pos/purchasing/creditnote/TabCreditNoteInvoice.h"
#include "pos/purchasing/creditnote/TabCreditNotePurchases.h"
#include "pos/purchasing/document/PurchasingTotals.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"

#include "ui_DialogCreditNote.h"

#include <algorithm>

DialogCreditNote::DialogCreditNote(QWidget* parent)
    : PurchasingDialog(parent), m_ui(std::make_unique<Ui::DialogCreditNote>()), m_ofPurchase(new TabCreditNoteInvoice),
      m_free(new TabCreditNotePurchases)
{
    m_ui->setupUi(this);
    m_ui->totalsPane->setPaidCaption(tr("Amount Paid :"));
    m_ui->totalsPane->hideTax();
    m_ui->totalsPane->hideCredit();
    const AppFilterBar::Rows rows = statusRows();
    for (const auto& row : rows)
        m_ui->ddlStatus->addItem(row.first, row.second);
    Form form = formOf(*m_ui);
    form.dates = {m_ui->dateCreditNote};
    setUpPurchasing(form,
                    {tr("Select a supplier"), tr("Add one or more items"), tr("Enter the Accounts Payable"),
                     tr("Enter the valid Accounts Payable")},
                    payableAccount());
    editsDocument<EntityCreditNote>({{m_ui->txtNo, "No"}, {m_ui->dateCreditNote, "Date"}, {m_ui->txtNotes, "Note"}});
    addLinesPage(m_ofPurchase, tr("[F3] From Invoice"), Qt::Key_F3);
    addLinesPage(m_free, tr("[F4] Item"), Qt::Key_F4);
    connect(m_ofPurchase, &AppLinesTab::ItemAdded, this, &DialogCreditNote::showPurchase);
    connect(m_ui->totalsPane->boxes().netDue, &QLineEdit::textChanged, this, &DialogCreditNote::showStatus);
    // The user has to enter the refunded amount, even if it is zero.
    m_ui->totalsPane->boxes().paid->clear();
}

DialogCreditNote::~DialogCreditNote() = default;

AppFilterBar::Rows DialogCreditNote::statusRows()
{
    return {{tr("Full Paid"), EntityCreditNote::FULL_PAID},
            {tr("Unpaid"), EntityCreditNote::UNPAID},
            {tr("Partially Paid"), EntityCreditNote::PARTIALLY_PAID},
            {tr("Cancelled"), EntityCreditNote::CANCELLED}};
}

PurchasingDialog::PurchasingLines DialogCreditNote::allLines() const
{
    return castAll<EntityPurchasingLine>(m_ofPurchase->lines() + m_free->lines());
}

void DialogCreditNote::supplierChanged() { m_ofPurchase->setSupplier(supplier()); }

/** Shows the status that results from the amounts; a cancelled note keeps its status until the user changes it. */
void DialogCreditNote::showStatus()
{
    if (m_ui->ddlStatus->currentData() == EntityCreditNote::CANCELLED)
        return;
    const bool isShort = cascade()->totals().isShort();
    m_ui->ddlStatus->setCurrentIndex(
        m_ui->ddlStatus->findData(isShort ? EntityCreditNote::PARTIALLY_PAID : EntityCreditNote::FULL_PAID));
}

void DialogCreditNote::showPurchase()
{
    if (m_shownPurchaseId == m_ofPurchase->sourceId())
        return;
    m_shownPurchaseId = m_ofPurchase->sourceId();
    EntityPool read;
    const EntityPoolScope scope(read);
    const EntityAcquisition* purchase = m_shownPurchaseId == KorNoValue
                                            ? nullptr
                                            : service<BusinessPurchases>("Purchases")->findHeader(m_shownPurchaseId);
    m_ui->txtPurchaseNo->setText(purchase ? purchase->getNo() : QString());
}

// --- saving --------------------------------------------------------------------------------------------------------

void DialogCreditNote::checkLines()
{
    const PurchasingLines lines = allLines();
    const bool goesBack = std::any_of(lines.cbegin(), lines.cend(),
                                      [](const EntityPurchasingLine* line) { return line->quantity() > 0; });
    if (!goesBack && !lines.isEmpty())
        addError(m_ui->tabDetail, tr("There should be minimal one item returned"));
    PurchasingDialog::checkLines();
    if (m_ofPurchase->isOfOtherSupplier())
        addError(m_ui->tabDetail, tr("The purchase is of another supplier"));
}

void DialogCreditNote::checkMoney()
{
    MoneyEdit* paid = m_ui->totalsPane->boxes().paid;
    if (!paid->isValid() || paid->value() < 0)
        addError(paid, tr("Enter the amount paid"));
}

void DialogCreditNote::setEntity(KorEntity* entity)
{
    PurchasingDialog::setEntity(entity);
    const auto* note = held<EntityCreditNote>();
    QList<KorEntity*> free;
    QList<KorEntity*> returned;
    for (EntityCreditNoteDetail* line : note->getDetails())
        (line->getAcquisitionDetailId() == KorNoValue ? free : returned).append(line);
    m_free->setLines(free);
    m_ofPurchase->setSourceLines(note->getAcquisitionId(), returned);
    if (returned.isEmpty() && !free.isEmpty())
        m_ui->tabDetail->setCurrentWidget(m_free);
    InvoiceTotals stored = storedTotals(*note, note->getSubtotal());
    stored.setPaid(wholeUnits(note->getAmountPaid()));
    showTotals(stored);
    m_ui->ddlStatus->setCurrentIndex(m_ui->ddlStatus->findData(note->getStatus()));
}

KorEntity* DialogCreditNote::getEntity()
{
    PurchasingDialog::getEntity();
    auto* note = held<EntityCreditNote>();
    note->setIsApplyToInvoice(m_ofPurchase->sourceId() != KorNoValue);
    note->setAcquisitionId(m_ofPurchase->sourceId());
    note->setDetails(castAll<EntityCreditNoteDetail>(m_ofPurchase->lines() + m_free->lines()));
    note->setRemovedDetails(castAll<EntityCreditNoteDetail>(m_ofPurchase->removedLines() + m_free->removedLines()));
    const InvoiceTotals& money = totals();
    note->setSubtotal(moneyOf(money, money.subtotal(), note));
    writeTotals(money, note);
    note->setAmountPaid(moneyOf(money, money.paid(), note));
    note->setChange(moneyOf(money, money.change(), note));
    note->setStatus(m_ui->ddlStatus->currentData().toInt());
    return note;
}
