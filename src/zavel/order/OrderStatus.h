#pragma once

#include <QtGlobal>

class Invoice;

/** The status that an order gets from what was paid of what it costs; both in minor units. */
[[nodiscard]] int orderStatusOfMoney(qint64 paid, qint64 grandTotal);
/** The same from the money of one invoice. */
[[nodiscard]] int orderStatusOfInvoice(const Invoice& invoice);
/** A take-away order's status from its invoice's status; -1 where the status says nothing about the order. */
[[nodiscard]] int orderStatusOfInvoiceStatus(int invoiceStatus);
