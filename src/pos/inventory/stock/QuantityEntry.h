#pragma once

#include "app/widgets/AppNumberEdit.h"

#include <cmath>
#include <optional>

/** The quantities that forms of the storeroom take. */
struct QuantityEntry
{
    /** More than any storeroom holds, and little enough that two of them can be added. */
    static constexpr int largest = 999'999'999;

    /** The whole number in the field; nothing for an empty one, a fraction, and what is no number or too large. */
    [[nodiscard]] static std::optional<int> read(AppNumberEdit& field)
    {
        if (!field.isValid())
            return std::nullopt;
        const double number = field.value();
        if (std::abs(number) > largest || number != std::floor(number))
            return std::nullopt;
        return static_cast<int>(number);
    }
};
