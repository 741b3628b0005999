#pragma once

#include "app/money/Money.h"

#include <memory>

class Invoice;

/** An amount of minor units. */
[[nodiscard]] std::unique_ptr<Money> minorUnits(double amount, const QString& currency);
/** What is left to pay of the invoice, in its own currency. */
[[nodiscard]] std::unique_ptr<Money> amountLeft(const Invoice& invoice);
