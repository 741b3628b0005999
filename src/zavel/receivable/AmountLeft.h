#pragma once

#include "app/money/MinorUnits.h"

class Invoice;

/** The amount of the invoice that is still unpaid, in the invoice's currency. */
[[nodiscard]] std::unique_ptr<Money> amountLeft(const Invoice& invoice);
