#pragma once

#include "app/widgets/AppNumberEdit.h"

/** A line edit for a percent, which is not negative. */
class PercentEdit : public AppNumberEdit
{
    Q_OBJECT

public:
    using AppNumberEdit::AppNumberEdit;

    /** What is not between 0 and 100 is asked about, and refused neither below nor above. */
    void askBeyondHundred() { m_asksBeyondHundred = true; }

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;

private:
    bool m_asksBeyondHundred = false;
};
