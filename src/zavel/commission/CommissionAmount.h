#pragma once

#include "app/money/Money.h"

#include <memory>

class EntityKomisiAgenDetail;
class Invoice;

/** The agent's share of the invoice's total, rounded as it is stored. */
[[nodiscard]] std::unique_ptr<Money> commissionOf(const Invoice& invoice, double percent);
/** Sets the line's percent and the commission calculated from it. */
void setCommission(EntityKomisiAgenDetail* line, double percent);
