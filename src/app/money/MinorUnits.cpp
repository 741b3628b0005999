#include "app/money/MinorUnits.h"

std::unique_ptr<Money> minorUnits(double amount, const QString& currency)
{
    auto money = std::make_unique<Money>(nullptr, 0, currency);
    money->setRawAmount(amount);
    return money;
}
