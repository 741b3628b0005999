#pragma once

#include "app/widgets/AppNumberEdit.h"

#include <cmath>
#include <optional>

/** More than any storeroom holds, and little enough that two of them can be added. */
inline constexpr int largestQuantity = 999'999'999;

/** The whole number in the field; nothing for an empty field, a fraction, and what is no number or too large a one. */
[[nodiscard]] inline std::optional<int> enteredQuantity(AppNumberEdit& field)
{
    if (!field.isValid())
        return std::nullopt;
    const double number = field.value();
    if (std::abs(number) > largestQuantity || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}
