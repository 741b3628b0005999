#include "pos/purchasing/payment/TabPaymentInvoice.h"

#include "pos/purchasing/payment/DialogPaymentInvoice.h"
#include "pos/purchasing/payment/TableModelPaymentInvoice.h"

#include <QPushButton>

TabPaymentInvoice::TabPaymentInvoice(QWidget* parent) : PartPaymentsTab(parent)
{
    setWidths({200, 120, 170, 170});
    connect(addButton("btnPay", tr("Pay Invoice"), ":/icons/pay.png", "F2"), &QPushButton::clicked, this,
            &TabPaymentInvoice::on_btnPay_clicked);
    connect(addButton("btnPayAll", tr("Pay All Invoices"), ":/icons/finish.png", "F9"), &QPushButton::clicked, this,
            &TabPaymentInvoice::on_btnPayAll_clicked);
}

KorEntityModel* TabPaymentInvoice::createModel(const QList<KorEntity*>& lines)
{
    return new TableModelPaymentInvoice(lines, this);
}

std::unique_ptr<KorDialog> TabPaymentInvoice::createDialog() { return std::make_unique<DialogPaymentInvoice>(this); }
