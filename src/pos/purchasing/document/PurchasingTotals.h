#pragma once

#include "app/money/Money.h"
#include "pos/totals/InvoiceTotals.h"

// Convert between a form's totals and a stored document. Documents have no common base class, only the same names.

[[nodiscard]] inline double wholeUnits(const Money* money)
{
    return money ? double(money->rawAmount()) / money->factor() : 0;
}

/** An amount of the form as Money, which the document owns. */
[[nodiscard]] inline Money* moneyOf(const InvoiceTotals& totals, double amount, QObject* document)
{
    return new Money(document, amount, totals.currency());
}

/** Reads what all documents have: the discount, and the subtotal, whose name differs. */
template <class Document>
[[nodiscard]] InvoiceTotals storedTotals(const Document& document, const Money* subtotal)
{
    InvoiceTotals totals;
    totals.setCurrency(subtotal->getCurrency());
    totals.setSubtotal(wholeUnits(subtotal));
    totals.restore(InvoiceTotals::Discount, document.getDiscountPercentage(), wholeUnits(document.getDiscount()));
    return totals;
}

template <class Document>
void readTax(InvoiceTotals& totals, const Document& document)
{
    totals.restore(InvoiceTotals::Tax, document.getTaxPercentage(), wholeUnits(document.getTax()));
}

/** Writes discount and grand total. */
template <class Document>
void writeTotals(const InvoiceTotals& totals, Document* document)
{
    document->setDiscountPercentage(totals.percent(InvoiceTotals::Discount));
    document->setDiscount(moneyOf(totals, totals.amount(InvoiceTotals::Discount), document));
    document->setGrandTotal(moneyOf(totals, totals.grandTotal(), document));
}

template <class Document>
void writeTax(const InvoiceTotals& totals, Document* document)
{
    document->setTaxPercentage(totals.percent(InvoiceTotals::Tax));
    document->setTax(moneyOf(totals, totals.amount(InvoiceTotals::Tax), document));
}
