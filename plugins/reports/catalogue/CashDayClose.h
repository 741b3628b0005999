#pragma once

#include "reports/engine/Report.h"

/** What each cashier took on one day by kind of payment, and how much cash should be in the drawer. */
[[nodiscard]] Report dayClose();
