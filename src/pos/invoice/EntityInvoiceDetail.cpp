#include "pos/invoice/EntityInvoiceDetail.h"

#include <limits>
#include <memory>

void EntityInvoiceDetail::setQtySplit(int quantity)
{
    setQty(getQty() + m_qtySplit - quantity);
    m_qtySplit = quantity;
    if (getTotal())
        recomputeTotal();
}

void EntityInvoiceDetail::recomputeTotal()
{
    if (!getPriceEach())
        return;
    const std::unique_ptr<Money> total(getPriceEach()->multiply(getQty()));
    setTotal(total.get());
}

bool EntityInvoiceDetail::totalFits() const
{
    if (!getPriceEach())
        return true;
    const qint64 total = qint64(getPriceEach()->rawAmount()) * getQty();
    return qAbs(total) <= std::numeric_limits<int>::max();
}
