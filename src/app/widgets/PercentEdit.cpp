#include "app/widgets/PercentEdit.h"

QString PercentEdit::fault()
{
    const QString fault = AppNumberEdit::fault();
    const bool isNegative = holdsNumber() && storedValue() < 0 && !m_asksBeyondHundred;
    return fault.isEmpty() && isNegative ? tr("The percentage must not be negative") : fault;
}

QString PercentEdit::doubt()
{
    const bool isUnusual = m_asksBeyondHundred && (value() < 0 || value() > 100);
    return isUnusual ? tr("%1 is not between 0 and 100").arg(displayText()) : QString();
}
