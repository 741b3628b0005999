#include "pos/purchasing/document/EntityPurchasingLine.h"

#include <limits>
#include <memory>

void EntityPurchasingLine::recomputeTotal()
{
    if (!linePrice())
        return;
    const std::unique_ptr<Money> total(linePrice()->multiply(quantity()));
    if (getDiscount())
        total->setRawAmount(static_cast<double>(total->rawAmount()) - getDiscount()->rawAmount());
    setLineTotal(total.get());
}

void EntityPurchasingLine::takeFigures(const EntityPurchasingLine& other)
{
    setQuantity(other.quantity());
    setLinePrice(other.linePrice());
    setDiscount(other.getDiscount());
    setDiscountPercentage(other.getDiscountPercentage());
    setLineTotal(other.lineTotal());
}

bool EntityPurchasingLine::totalFits() const
{
    if (!linePrice())
        return true;
    const qint64 total = qint64(linePrice()->rawAmount()) * quantity();
    return qAbs(total) <= std::numeric_limits<int>::max();
}
