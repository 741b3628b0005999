#pragma once

#include <QtGlobal>

class Invoice;

/** The order status that follows from the amount paid and the grand total, both in minor units. */
[[nodiscard]] int orderStatusOfMoney(qint64 paid, qint64 grandTotal);
/** The same from the money of one invoice. */
[[nodiscard]] int orderStatusOfInvoice(const Invoice& invoice);
/** A take-away order's status from its invoice's status; -1 if the invoice's status does not define one. */
[[nodiscard]] int orderStatusOfInvoiceStatus(int invoiceStatus);
