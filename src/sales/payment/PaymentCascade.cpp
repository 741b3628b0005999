#include "sales/payment/PaymentCascade.h"

#include "app/widgets/AppNumberEdit.h"
#include "app/widgets/MoneyEdit.h"

#include <QLabel>

namespace
{
constexpr QRgb missingRgb = 0xffb42318;
constexpr QRgb coveredRgb = 0xff1e7a34;
} // namespace

PaymentCascade::PaymentCascade(const Boxes& boxes, QObject* parent) : QObject(parent), m_boxes(boxes)
{
    m_totals.setCurrency(boxes.subtotal->currency());
}

void PaymentCascade::clear()
{
    for (AppNumberEdit* box : m_boxes.percents)
        box->setValue(0);
    for (MoneyEdit* box :
         {m_boxes.subtotal, m_boxes.amounts[0], m_boxes.amounts[1], m_boxes.amounts[2], m_boxes.paid, m_boxes.credit})
        box->setValue(0);
}

void PaymentCascade::setSubtotal(double amount)
{
    m_totals.setSubtotal(amount);
    m_boxes.subtotal->setValue(m_totals.subtotal());
    calculateTotal();
}

void PaymentCascade::proposeDiscount(double percent)
{
    m_totals.proposePercent(InvoiceTotals::Discount, percent);
    m_boxes.percents[InvoiceTotals::Discount]->setValue(percent);
}

void PaymentCascade::percentEntered(InvoiceTotals::Part part)
{
    m_totals.setPercent(part, m_boxes.percents[part]->value());
    m_boxes.amounts[part]->setValue(m_totals.amount(part));
    calculateTotal();
}

void PaymentCascade::amountEntered(InvoiceTotals::Part part)
{
    m_totals.setAmount(part, m_boxes.amounts[part]->value());
    m_boxes.percents[part]->setValue(m_totals.percent(part));
    calculateTotal();
}

void PaymentCascade::calculateTotal()
{
    m_totals.setPaid(m_boxes.paid->value());
    m_totals.setCredit(m_boxes.credit->value());
    for (MoneyEdit* box : qAsConst(m_boxes.grandTotals))
        box->setValue(m_totals.grandTotal());
    m_boxes.netDue->setValue(m_totals.change());
    m_boxes.netDueLabel->setText(m_totals.isShort() ? tr("Less :") : tr("Change :"));
    QPalette palette = m_boxes.netDue->palette();
    palette.setColor(QPalette::Text, m_totals.isShort() ? QColor(missingRgb) : QColor(coveredRgb));
    m_boxes.netDue->setPalette(palette);
}

QLineEdit* PaymentCascade::wrongEntry() const
{
    const QList<AppNumberEdit*> boxes{m_boxes.percents[0], m_boxes.amounts[0], m_boxes.percents[1], m_boxes.amounts[1],
                                      m_boxes.percents[2], m_boxes.amounts[2], m_boxes.paid,        m_boxes.credit};
    for (AppNumberEdit* box : boxes) {
        // What the form itself wrote may be no number either: a percent of nothing.
        if (!box->isValid() && box->text() != box->displayText())
            return box;
    }
    return nullptr;
}

void PaymentCascade::showPart(InvoiceTotals::Part part)
{
    m_boxes.percents[part]->setValue(m_totals.percent(part));
    m_boxes.amounts[part]->setValue(m_totals.amount(part));
}

void PaymentCascade::readFrom(const Invoice& invoice)
{
    m_totals.readFrom(invoice);
    const InvoiceTotals stored = m_totals;
    m_boxes.subtotal->setValue(stored.subtotal());
    showPart(InvoiceTotals::Discount);
    showPart(InvoiceTotals::Tax);
    showPart(InvoiceTotals::Service);
    // Each box tells of its change at once; the figures come from the invoice, not from a form half filled.
    m_boxes.paid->setValue(stored.paid());
    m_boxes.credit->setValue(stored.credit());
    calculateTotal();
}

void PaymentCascade::writeTo(Invoice* invoice)
{
    calculateTotal();
    m_totals.writeTo(invoice);
}
