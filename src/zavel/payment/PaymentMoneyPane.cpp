#include "zavel/payment/PaymentMoneyPane.h"

#include "ui_PaymentMoneyPane.h"

PaymentMoneyPane::PaymentMoneyPane(QWidget* parent) : QWidget(parent), m_ui(std::make_unique<Ui::PaymentMoneyPane>())
{
    m_ui->setupUi(this);
    // The form's tab order refers to this pane; the proxy passes the focus to its first box.
    setFocusProxy(m_ui->txtDiscPerc);
}

PaymentMoneyPane::~PaymentMoneyPane() = default;

TotalsCascade::Boxes PaymentMoneyPane::boxes() const
{
    return {m_ui->txtSubTotal,
            {m_ui->txtDiscPerc, m_ui->txtTaxPerc, m_ui->txtServicePerc},
            {m_ui->txtDiscount, m_ui->txtTax, m_ui->txtService},
            m_ui->txtPaid,
            m_ui->txtCredit,
            {m_ui->txtGrandTotal, m_ui->txtGrandTotal_2},
            m_ui->txtNetDue,
            m_ui->lblNetDue};
}

void PaymentMoneyPane::setTotalCaption(const QString& text) { m_ui->lblInvoiceTotal->setText(text); }
