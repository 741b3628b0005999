#pragma once

#include <QColor>
#include <QIcon>

// How lists show what is paid of a purchase or a return. 1 is paid, 2 unpaid, 3 paid in part.

[[nodiscard]] QString paidStatusText(int status);
/** The row's colour; invalid for a status that has none. */
[[nodiscard]] QColor paidStatusColour(int status);
[[nodiscard]] QIcon paidStatusMark(int status);
