#pragma once

class Invoice;

/** FULL_PAID, UNPAID or PARTIALLY_PAID from the money; an invoice of nothing with nothing paid is unpaid. */
void setInvoiceStatus(Invoice* invoice);
