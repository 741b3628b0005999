#pragma once

#include <QColor>
#include <QIcon>

// How lists show the payment status of a purchase or return. 1 is paid, 2 unpaid, 3 partially paid.

[[nodiscard]] QString paidStatusText(int status);
/** The row's colour; invalid if the status has none. */
[[nodiscard]] QColor paidStatusColour(int status);
[[nodiscard]] QIcon paidStatusMark(int status);
