#pragma once

#include "app/money/Money.h"

#include <memory>

/** An amount of so many of the currency's smallest units. */
[[nodiscard]] std::unique_ptr<Money> minorUnits(double amount, const QString& currency);
