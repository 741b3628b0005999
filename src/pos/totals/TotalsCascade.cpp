#include "pos/totals/TotalsCascade.h"

#include "app/widgets/AppNumberEdit.h"
#include "app/widgets/MoneyEdit.h"
#include "kor/widgets/KorDialog.h"

#include <QFocusEvent>
#include <QLabel>

namespace
{
constexpr QRgb missingRgb = 0xffb42318;
constexpr QRgb coveredRgb = 0xff1e7a34;
} // namespace

TotalsCascade::TotalsCascade(const Boxes& boxes, QObject* parent) : QObject(parent), m_boxes(boxes)
{
    m_totals.setCurrency(boxes.subtotal->currency());
}

void TotalsCascade::clear()
{
    InvoiceTotals nothing;
    nothing.setCurrency(m_boxes.subtotal->currency());
    show(nothing);
}

void TotalsCascade::setSubtotal(double amount)
{
    m_totals.setSubtotal(amount);
    m_boxes.subtotal->setValue(m_totals.subtotal());
    calculateTotal();
}

void TotalsCascade::proposeDiscount(double percent)
{
    m_totals.proposePercent(InvoiceTotals::Discount, percent);
    m_boxes.percents[InvoiceTotals::Discount]->setValue(percent);
    m_isProposed = true;
    // On all widgets, because the user may leave from any of them. Focus changes by the form itself are ignored.
    const QList<QWidget*> boxes = m_boxes.subtotal->window()->findChildren<QWidget*>();
    for (QWidget* box : boxes)
        box->installEventFilter(this);
}

bool TotalsCascade::eventFilter(QObject* watched, QEvent* event)
{
    // These two fields report their changes themselves.
    const bool tells =
        watched == m_boxes.percents[InvoiceTotals::Discount] || watched == m_boxes.amounts[InvoiceTotals::Discount];
    if (event->type() == QEvent::FocusOut && !tells) {
        switch (static_cast<QFocusEvent*>(event)->reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::MouseFocusReason:
        case Qt::ShortcutFocusReason:
            settleProposal();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void TotalsCascade::settleProposal()
{
    if (m_isProposed)
        percentEntered(InvoiceTotals::Discount);
}

void TotalsCascade::percentEntered(InvoiceTotals::Part part)
{
    if (part == InvoiceTotals::Discount)
        m_isProposed = false;
    m_totals.setPercent(part, m_boxes.percents[part]->value());
    m_boxes.amounts[part]->setValue(m_totals.amount(part));
    calculateTotal();
}

void TotalsCascade::amountEntered(InvoiceTotals::Part part)
{
    if (part == InvoiceTotals::Discount)
        m_isProposed = false;
    if (m_keepsPercentsOfNothing && qFuzzyIsNull(m_totals.subtotal()))
        m_totals.restore(part, m_totals.percent(part), m_boxes.amounts[part]->value());
    else
        m_totals.setAmount(part, m_boxes.amounts[part]->value());
    m_boxes.percents[part]->setValue(m_totals.percent(part));
    calculateTotal();
}

void TotalsCascade::calculateTotal()
{
    m_totals.setPaid(m_boxes.paid ? m_boxes.paid->value() : 0);
    m_totals.setCredit(m_boxes.credit ? m_boxes.credit->value() : 0);
    for (MoneyEdit* box : qAsConst(m_boxes.grandTotals))
        box->setValue(m_totals.grandTotal());
    if (!m_boxes.netDue)
        return;
    m_boxes.netDue->setValue(m_totals.change());
    m_boxes.netDueLabel->setText(m_totals.isShort() ? tr("Less :") : tr("Change :"));
    QPalette palette = m_boxes.netDue->palette();
    palette.setColor(QPalette::Text, m_totals.isShort() ? QColor(missingRgb) : QColor(coveredRgb));
    m_boxes.netDue->setPalette(palette);
}

void TotalsCascade::checkDiscount(KorDialog& form) const
{
    if (m_totals.amount(InvoiceTotals::Discount) > m_totals.subtotal())
        form.addError(m_boxes.amounts[InvoiceTotals::Discount],
                      tr("The discount should not be larger than the sub total"));
}

void TotalsCascade::showPart(InvoiceTotals::Part part)
{
    if (!m_boxes.amounts[part])
        return;
    m_boxes.percents[part]->setValue(m_totals.percent(part));
    m_boxes.amounts[part]->setValue(m_totals.amount(part));
}

void TotalsCascade::show(const InvoiceTotals& stored)
{
    m_isProposed = false;
    m_totals = stored;
    m_boxes.subtotal->setValue(stored.subtotal());
    showPart(InvoiceTotals::Discount);
    showPart(InvoiceTotals::Tax);
    showPart(InvoiceTotals::Service);
    // Set each field from the document: every change emits a signal at once, which would use half-filled fields.
    if (m_boxes.paid)
        m_boxes.paid->setValue(stored.paid());
    if (m_boxes.credit)
        m_boxes.credit->setValue(stored.credit());
    calculateTotal();
}

void TotalsCascade::readFrom(const Invoice& invoice)
{
    InvoiceTotals stored = m_totals;
    stored.readFrom(invoice);
    show(stored);
}

void TotalsCascade::writeTo(Invoice* invoice)
{
    calculateTotal();
    m_totals.writeTo(invoice);
}
