#pragma once

#include "app/money/Money.h"

#include <memory>

/** Money from an amount in the currency's minor units. */
[[nodiscard]] std::unique_ptr<Money> minorUnits(double amount, const QString& currency);
