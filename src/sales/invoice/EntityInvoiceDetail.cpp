#include "sales/invoice/EntityInvoiceDetail.h"

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
