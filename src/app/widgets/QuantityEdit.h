#pragma once

#include "app/widgets/AppNumberEdit.h"

#include <optional>

/** A line edit for a whole number between two limits, which the form's description may set. */
class QuantityEdit : public AppNumberEdit
{
    Q_OBJECT
    Q_PROPERTY(int quantity READ quantityOrNone WRITE setValue USER true)

public:
    /** More than any storeroom holds, and little enough that two of them can be added. */
    static constexpr int largest = 999'999'999;

    using AppNumberEdit::AppNumberEdit;

    void setLowest(int lowest) { m_lowest = lowest; }
    void setHighest(int highest) { m_highest = highest; }
    /** A fraction is rounded, when the user agrees, and not refused. */
    void setRounding(bool rounding) { m_rounds = rounding; }

    /** The whole number in the field; nothing for a fraction, for no number, and outside of the limits. */
    [[nodiscard]] std::optional<int> quantity();
    /** The same as a form takes it for its record: zero for nothing. */
    [[nodiscard]] int quantityOrNone() { return quantity().value_or(0); }

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;
    void settle() override;
    /** How a number outside of the limits is refused, also by a field of another class. */
    [[nodiscard]] static QString outside(int lowest, int highest);

private:
    [[nodiscard]] bool isWhole() const;

    int m_lowest = 0;
    int m_highest = largest;
    bool m_rounds = false;
};
