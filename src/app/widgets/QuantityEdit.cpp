#include "app/widgets/QuantityEdit.h"

#include "app/context/AppContext.h"

#include <cmath>

bool QuantityEdit::isWhole() const { return qFuzzyIsNull(storedValue() - std::round(storedValue())); }

std::optional<int> QuantityEdit::quantity()
{
    if (!isValid() || !isWhole() || storedValue() < m_lowest || storedValue() > m_highest)
        return std::nullopt;
    return static_cast<int>(std::round(storedValue()));
}

QString QuantityEdit::outside(int lowest, int highest)
{
    const QLocale locale(AppContext::instance()->locale());
    return tr("Please enter a whole number from %1 to %2").arg(locale.toString(lowest), locale.toString(highest));
}

QString QuantityEdit::fault()
{
    const QString fault = AppNumberEdit::fault();
    if (!fault.isEmpty() || !holdsNumber())
        return fault;
    if (storedValue() < m_lowest || storedValue() > m_highest)
        return outside(m_lowest, m_highest);
    return isWhole() || m_rounds ? QString() : tr("Please enter a whole number");
}

QString QuantityEdit::doubt()
{
    if (!isValid() || isWhole())
        return {};
    return tr("%1 will be stored as %2").arg(displayText(), locale().toString(std::round(storedValue()), 'f', 0));
}

void QuantityEdit::settle() { setValue(std::round(storedValue())); }
