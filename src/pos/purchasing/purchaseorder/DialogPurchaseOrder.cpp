#include "pos/purchasing/purchaseorder/DialogPurchaseOrder.h"

#include "pos/purchasing/document/PurchasingTotals.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/TabPurchaseOrderDetail.h"

#include "ui_DialogPurchaseOrder.h"

#include <QShortcut>

DialogPurchaseOrder::DialogPurchaseOrder(QWidget* parent)
    : PurchasingDialog(parent), m_ui(std::make_unique<Ui::DialogPurchaseOrder>()), m_items(new TabPurchaseOrderDetail)
{
    m_ui->setupUi(this);
    using Order = EntityPurchaseOrder;
    m_ui->ddlStatus->addItem(tr("Sent to Supplier"), Order::RELEASED);
    m_ui->ddlStatus->addItem(tr("Received"), Order::RECEIVED);
    m_ui->ddlStatus->addItem(tr("Order Changed"), Order::CHANGE_ORDER);
    m_ui->ddlStatus->addItem(tr("Cancelled"), Order::CANCELED);
    m_ui->ddlStatus->addItem(tr("Closed"), Order::CLOSED);
    m_ui->totalsPane->setPaidCaption(tr("Deposit :"));
    m_ui->totalsPane->hideCredit();
    Form form = formOf(*m_ui);
    form.dates = {m_ui->datePO, m_ui->dateShip};
    setUpPurchasing(form,
                    {tr("Select a supplier"), tr("Insert one or more item"), tr("Please select an Accounts Payable"),
                     tr("Please select a valid Accounts Payable")},
                    payableAccount());
    // The dates are saved as midnight, so that a list up to a day contains all orders of that day.
    editsDocument<Order>({{m_ui->txtPONo, "No"},
                          {m_ui->datePO, "Date"},
                          {m_ui->dateShip, "ShipDate"},
                          {m_ui->ddlStatus, "Status"},
                          {m_ui->txtNoRek, "NoRek"},
                          {m_ui->txtNotes, "Note"}});
    addLinesPage(m_items, tr("[F3] Items"), Qt::Key_F3);
    connect(new QShortcut(Qt::Key_F4, this), &QShortcut::activated, m_ui->txtNotes,
            [this] { m_ui->txtNotes->setFocus(); });
}

DialogPurchaseOrder::~DialogPurchaseOrder() = default;

PurchasingDialog::PurchasingLines DialogPurchaseOrder::allLines() const
{
    return castAll<EntityPurchasingLine>(m_items->lines());
}

void DialogPurchaseOrder::setEntity(KorEntity* entity)
{
    PurchasingDialog::setEntity(entity);
    const auto* order = held<EntityPurchaseOrder>();
    m_items->setLines(asEntities(order->getDetails()));
    InvoiceTotals stored = storedTotals(*order, order->getSubTotal());
    readTax(stored, *order);
    stored.setPaid(wholeUnits(order->getDeposit()));
    showTotals(stored);
}

KorEntity* DialogPurchaseOrder::getEntity()
{
    PurchasingDialog::getEntity();
    auto* order = held<EntityPurchaseOrder>();
    order->setDetails(castAll<EntityPurchaseOrderDetail>(m_items->lines()));
    order->setRemovedDetails(castAll<EntityPurchaseOrderDetail>(m_items->removedLines()));
    const InvoiceTotals& money = totals();
    order->setSubTotal(moneyOf(money, money.subtotal(), order));
    writeTotals(money, order);
    writeTax(money, order);
    order->setDeposit(moneyOf(money, money.paid(), order));
    return order;
}
