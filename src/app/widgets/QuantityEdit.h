#pragma once

#include "app/widgets/AppNumberEdit.h"

#include <optional>

/** A field for a whole number between two limits, which can be set in the .ui file. */
class QuantityEdit : public AppNumberEdit
{
    Q_OBJECT
    Q_PROPERTY(int quantity READ quantityOrNone WRITE setValue USER true)

public:
    /** More than any storeroom holds, and the sum of two still fits an int. */
    static constexpr int largest = 999'999'999;

    using AppNumberEdit::AppNumberEdit;

    void setLowest(int lowest) { m_lowest = lowest; }
    void setHighest(int highest) { m_highest = highest; }
    /** If true, a fraction is not refused but rounded after asking the user. */
    void setRounding(bool rounding) { m_rounds = rounding; }

    /** The whole number; none for a fraction, for no number, and outside of the limits. */
    [[nodiscard]] std::optional<int> quantity();
    /** The same, but zero for none. */
    [[nodiscard]] int quantityOrNone() { return quantity().value_or(0); }

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;
    void settle() override;
    /** The error text for a number outside of the limits, also for other fields. */
    [[nodiscard]] static QString outside(int lowest, int highest);

private:
    [[nodiscard]] bool isWhole() const;

    int m_lowest = 0;
    int m_highest = largest;
    bool m_rounds = false;
};
