#include "zavel/takeaway/DialogBayarBawaPulang.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/payment/PaymentMoneyPane.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"
#include "zavel/takeaway/TabBayarBawaPulangDetail.h"

#include "ui_DialogBayarBawaPulang.h"

DialogBayarBawaPulang::DialogBayarBawaPulang(QWidget* parent)
    : OrderPaymentDialog(StoresWhatIsShown, parent), m_ui(std::make_unique<Ui::DialogBayarBawaPulang>())
{
    m_ui->setupUi(this);
    m_ui->moneyPane->setTotalCaption(tr("Total Invoice :"));
    m_menu = new TabBayarBawaPulangDetail(this);
    connect(m_menu, &TabBayarBawaPulangDetail::ItemAdded, this, &DialogBayarBawaPulang::onItemAdded);
    setUp(formOf(*m_ui), m_menu);
    onKey(QKeySequence("Ctrl+P"), [this] { on_btnPrint_clicked(); });
}

DialogBayarBawaPulang::~DialogBayarBawaPulang() = default;

OrderPaymentDialog::Texts DialogBayarBawaPulang::texts() const
{
    return {tr("Do you want to print the invoice ?"), tr("Do you want to close this order: %1 ?").arg(order()->getId()),
            tr("This order has not been paid yet. Please press the Cancel button to cancel this order")};
}

QList<EntityInvoiceDetail*> DialogBayarBawaPulang::invoiceLines() const { return m_menu->details(); }

void DialogBayarBawaPulang::setLines(const InvoiceLines& lines) { m_menu->setDetails(lines); }

void DialogBayarBawaPulang::focusLines() { m_menu->focusGrid(); }

QList<EntityInvoiceLink*> DialogBayarBawaPulang::readInvoices(int orderId)
{
    QList<EntityInvoiceLink*> invoices;
    for (EntityInvoiceBawaPulang* invoice : sales()->getInvoicesOfBawaPulang(orderId))
        invoices.append(invoice);
    return invoices;
}

EntityOrder* DialogBayarBawaPulang::readOrder(int id) { return sales()->findOrderBawaPulang(id); }

EntityInvoiceLink* DialogBayarBawaPulang::createSale() { return new EntityInvoiceBawaPulang(this); }

EntityInvoiceLink* DialogBayarBawaPulang::readSale(int id) { return sales()->findInvoiceBawaPulang(id); }

EntityOrder* DialogBayarBawaPulang::orderOf(const EntityInvoiceLink& sale) const
{
    return static_cast<const EntityInvoiceBawaPulang&>(sale).getBawaPulang();
}

void DialogBayarBawaPulang::fillSale(EntityInvoiceLink* sale, EntityOrder* order)
{
    auto* takeAway = static_cast<EntityInvoiceBawaPulang*>(sale);
    takeAway->setBawaPulang(static_cast<EntityBawaPulang*>(order));
    takeAway->setMember(order->getMember());
    takeAway->setPemesan(order->getPemesan());
}

bool DialogBayarBawaPulang::finish(EntityOrder* order)
{
    return sales()->bawaPulangSelesai(static_cast<EntityBawaPulang*>(order));
}

void DialogBayarBawaPulang::printBill(int saleId) { SlipRequests::instance()->printBillBawaPulang(saleId); }

void DialogBayarBawaPulang::on_btnPrint_clicked() { saveAndPrint(m_ui->btnPrint); }
