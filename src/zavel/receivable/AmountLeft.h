#pragma once

#include "app/money/MinorUnits.h"

class Invoice;

/** What is left to pay of the invoice, in its own currency. */
[[nodiscard]] std::unique_ptr<Money> amountLeft(const Invoice& invoice);
