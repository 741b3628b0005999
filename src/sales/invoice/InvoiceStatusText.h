#pragma once

#include <QString>

/** The word for an invoice's status in lists; empty for a number that is none. */
[[nodiscard]] QString invoiceStatusText(int status);
