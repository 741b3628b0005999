#include "pos/purchasing/purchase/DialogPurchases.h"

#include "pos/purchasing/document/PurchasingTotals.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchase/TabPurchaseDetail.h"
#include "pos/purchasing/purchase/TabPurchaseDetailPO.h"

#include "ui_DialogPurchases.h"

DialogPurchases::DialogPurchases(QWidget* parent)
    : PurchasingDialog(parent), m_ui(std::make_unique<Ui::DialogPurchases>()), m_free(new TabPurchaseDetail),
      m_ordered(new TabPurchaseDetailPO)
{
    m_ui->setupUi(this);
    Form form = formOf(*m_ui);
    form.dates = {m_ui->datePurchase, m_ui->dateDue};
    setUpPurchasing(form,
                    {tr("Select a supplier"), tr("Please add one or more items"),
                     tr("Please select an Accounts Payable"), tr("Please select a valid Accounts Payable")},
                    payableAccount());
    editsDocument<EntityAcquisition>({{m_ui->txtPurchaseNo, "No"},
                                      {m_ui->datePurchase, "PurchaseDate"},
                                      {m_ui->dateDue, "DueDate"},
                                      {m_ui->txtInvoiceNo, "InvoiceNo"},
                                      {m_ui->txtNotes, "Note"}});
    addLinesPage(m_free, tr("[F3] Purchases"), Qt::Key_F3);
    addLinesPage(m_ordered, tr("[F4] from Purchase Order"), Qt::Key_F4);
}

DialogPurchases::~DialogPurchases() = default;

PurchasingDialog::PurchasingLines DialogPurchases::allLines() const
{
    return castAll<EntityPurchasingLine>(m_free->lines() + m_ordered->lines());
}

void DialogPurchases::checkLines()
{
    const PurchasingLines lines = allLines();
    for (const EntityPurchasingLine* line : lines) {
        if (line->quantity() == 0)
            addError(m_ui->tabDetail, tr("Please enter a valid qty for this item %1").arg(line->getItem()->getNama()));
    }
    PurchasingDialog::checkLines();
    if (m_ordered->isOfOtherSupplier())
        addError(m_ui->tabDetail, tr("The purchase order is of another supplier"));
}

void DialogPurchases::supplierChanged() { m_ordered->setSupplier(supplier()); }

void DialogPurchases::setEntity(KorEntity* entity)
{
    PurchasingDialog::setEntity(entity);
    const auto* purchase = held<EntityAcquisition>();
    QList<KorEntity*> free;
    QList<KorEntity*> ordered;
    for (EntityAcquisitionDetail* line : purchase->getDetails())
        (line->getPurchaseOrderDetailId() == KorNoValue ? free : ordered).append(line);
    m_free->setLines(free);
    m_ordered->setSourceLines(purchase->getPurchaseOrderId(), ordered);
    if (free.isEmpty() && !ordered.isEmpty())
        m_ui->tabDetail->setCurrentWidget(m_ordered);
    InvoiceTotals stored = storedTotals(*purchase, purchase->getSubtotal());
    readTax(stored, *purchase);
    stored.setPaid(wholeUnits(purchase->getAmountPaid()));
    stored.setCredit(wholeUnits(purchase->getOtherPayment()));
    showTotals(stored);
}

KorEntity* DialogPurchases::getEntity()
{
    PurchasingDialog::getEntity();
    auto* purchase = held<EntityAcquisition>();
    purchase->setIsApplyToPurchaseOrder(m_ordered->sourceId() != KorNoValue);
    purchase->setPurchaseOrderId(m_ordered->sourceId());
    purchase->setDetails(castAll<EntityAcquisitionDetail>(m_free->lines() + m_ordered->lines()));
    purchase->setRemovedDetails(castAll<EntityAcquisitionDetail>(m_free->removedLines() + m_ordered->removedLines()));
    const InvoiceTotals& money = totals();
    purchase->setSubtotal(moneyOf(money, money.subtotal(), purchase));
    writeTotals(money, purchase);
    writeTax(money, purchase);
    purchase->setAmountPaid(moneyOf(money, money.paid(), purchase));
    purchase->setOtherPayment(moneyOf(money, money.credit(), purchase));
    purchase->setNetDue(moneyOf(money, -money.change(), purchase));
    return purchase;
}
