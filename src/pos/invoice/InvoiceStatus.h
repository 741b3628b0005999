#pragma once

class Invoice;

/** Sets FULL_PAID, UNPAID or PARTIALLY_PAID by the amounts. An invoice of zero without a payment is unpaid. */
void setInvoiceStatus(Invoice* invoice);
