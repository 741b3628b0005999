#pragma once

#include "reports/engine/Report.h"

/** What each cashier took on one day by the kind of payment, and what should lie in the drawer for it. */
[[nodiscard]] Report dayClose();
