#include "pos/purchasing/document/PurchasingTotalsPane.h"

#include "ui_PurchasingTotalsPane.h"

PurchasingTotalsPane::PurchasingTotalsPane(QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::PurchasingTotalsPane>())
{
    m_ui->setupUi(this);
    // In the form's tab order this pane is one widget.
    setFocusProxy(m_ui->txtDiscPerc);
}

PurchasingTotalsPane::~PurchasingTotalsPane() = default;

TotalsCascade::Boxes PurchasingTotalsPane::boxes() const
{
    return {m_ui->txtSubTotal,
            {m_ui->txtDiscPerc, m_hasTax ? m_ui->txtTaxPerc : nullptr, nullptr},
            {m_ui->txtDiscount, m_hasTax ? m_ui->txtTax : nullptr, nullptr},
            m_ui->txtPaid,
            m_hasCredit ? m_ui->txtCredit : nullptr,
            {m_ui->txtGrandTotal},
            m_ui->txtNetDue,
            m_ui->lblNetDue};
}

QLineEdit* PurchasingTotalsPane::accountBox() const { return m_ui->txtAPAccount; }

QLabel* PurchasingTotalsPane::accountName() const { return m_ui->lblAPAccount; }

void PurchasingTotalsPane::setNote(const QString& text)
{
    m_ui->lblNote->setText(text);
    m_ui->lblNote->setVisible(!text.isEmpty());
}

void PurchasingTotalsPane::setPaidCaption(const QString& text) { m_ui->lblPaid->setText(text); }

void PurchasingTotalsPane::hideTax()
{
    m_hasTax = false;
    for (QWidget* widget : QList<QWidget*>{m_ui->lblTax, m_ui->txtTaxPerc, m_ui->lblSignTaxPerc, m_ui->txtTax})
        widget->hide();
}

void PurchasingTotalsPane::hideCredit()
{
    m_hasCredit = false;
    m_ui->lblCredit->hide();
    m_ui->txtCredit->hide();
}
