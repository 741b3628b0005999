#pragma once

#include "app/widgets/AppNumberEdit.h"

/** A field for a percentage. Negative values are refused. */
class PercentEdit : public AppNumberEdit
{
    Q_OBJECT

public:
    using AppNumberEdit::AppNumberEdit;

    /** For values outside of 0 to 100 the user is asked; then negative values are not refused either. */
    void askBeyondHundred() { m_asksBeyondHundred = true; }

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;

private:
    bool m_asksBeyondHundred = false;
};
