#pragma once

#include "app/money/Money.h"

#include <memory>

class EntityKomisiAgenDetail;
class Invoice;

/** An agent's share of the invoice's total, as much of it as is stored. */
[[nodiscard]] std::unique_ptr<Money> commissionOf(const Invoice& invoice, double percent);
/** Gives the line this percent, and the commission that follows from it. */
void setCommission(EntityKomisiAgenDetail* line, double percent);
