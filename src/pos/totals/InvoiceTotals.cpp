#include "pos/totals/InvoiceTotals.h"

#include "app/money/Money.h"
#include "pos/invoice/Invoice.h"

#include <cmath>
#include <limits>

namespace
{
/** The largest amount that Money can hold, in whole units. */
double largest(const QString& currency)
{
    return std::numeric_limits<int>::max() / Money(nullptr, 0, currency).factor();
}
} // namespace

double InvoiceTotals::kept(double amount, const QString& currency)
{
    if (!std::isfinite(amount))
        return 0;
    return std::abs(amount) > largest(currency) ? amount : Money(nullptr, amount, currency).getAmount();
}

double InvoiceTotals::percentOf(double amount, double subtotal)
{
    const double percent = amount * 100 / subtotal;
    return std::ceil(percent * 1000 - 0.49) / 1000;
}

void InvoiceTotals::setAmount(Part part, double amount)
{
    m_amount[part] = kept(amount);
    m_percent[part] = percentOf(m_amount[part], m_subtotal);
}

void InvoiceTotals::setPercent(Part part, double percent)
{
    m_percent[part] = percent;
    m_amount[part] = kept(m_subtotal * (percent / 100));
}

void InvoiceTotals::restore(Part part, double percent, double amount)
{
    m_percent[part] = percent;
    m_amount[part] = kept(amount);
}

double InvoiceTotals::grandTotal() const
{
    return kept(m_subtotal - m_amount[Discount] + m_amount[Tax] + m_amount[Service]);
}

double InvoiceTotals::change() const { return kept(m_paid + m_credit - grandTotal()); }

bool InvoiceTotals::fits() const
{
    const double limit = largest(m_currency);
    for (double figure : {m_subtotal, m_amount[Discount], m_amount[Tax], m_amount[Service], m_paid, m_credit,
                          grandTotal(), m_paid + m_credit, change()}) {
        if (!(std::abs(figure) <= limit))
            return false;
    }
    return true;
}

void InvoiceTotals::writeTo(Invoice* invoice) const
{
    const auto money = [this, invoice](double amount) { return new Money(invoice, amount, m_currency); };
    // Without a subtotal the percentage is infinite or NaN. The form shows that, but it must not be stored.
    const auto stored = [this](Part part) { return std::isfinite(m_percent[part]) ? m_percent[part] : 0; };
    invoice->setSubtotal(money(m_subtotal));
    invoice->setDiscountPerc(stored(Discount));
    invoice->setDiscount(money(m_amount[Discount]));
    invoice->setTaxPerc(stored(Tax));
    invoice->setTax(money(m_amount[Tax]));
    invoice->setServicePerc(stored(Service));
    invoice->setService(money(m_amount[Service]));
    invoice->setGrandTotal(money(grandTotal()));
    invoice->setAmountPaid(money(m_paid));
    invoice->setOtherPayment(money(m_credit));
    invoice->setNetDue(money(-change()));
}

void InvoiceTotals::readFrom(const Invoice& invoice)
{
    const auto amount = [](const Money* money) { return money ? double(money->rawAmount()) / money->factor() : 0; };
    if (invoice.getSubtotal())
        m_currency = invoice.getSubtotal()->getCurrency();
    m_subtotal = amount(invoice.getSubtotal());
    restore(Discount, invoice.getDiscountPerc(), amount(invoice.getDiscount()));
    restore(Tax, invoice.getTaxPerc(), amount(invoice.getTax()));
    restore(Service, invoice.getServicePerc(), amount(invoice.getService()));
    m_paid = amount(invoice.getAmountPaid());
    m_credit = amount(invoice.getOtherPayment());
}
