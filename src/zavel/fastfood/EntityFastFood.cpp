#include "zavel/fastfood/EntityFastFood.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "zavel/fastfood/EntityFastFoodDetail.h"

namespace
{
template <class From, class To>
void copyLine(const From& from, To* to)
{
    to->setItem(from.getItem());
    to->setQty(from.getQty());
    to->setPriceEach(from.getPriceEach());
    to->setTotal(from.getTotal());
}
} // namespace

EntityFastFood::Lines EntityFastFood::takeLines(const QList<EntityInvoiceDetail*>& stored)
{
    Lines lines;
    for (const EntityInvoiceDetail* from : stored) {
        auto* line = new EntityFastFoodDetail(this);
        copyLine(*from, line);
        lines.append(line);
    }
    return lines;
}

void EntityFastFood::setLines(const Lines& lines)
{
    qDeleteAll(m_invoiceLines);
    m_invoiceLines.clear();
    for (const EntityOrderDetail* from : lines) {
        auto* line = new EntityInvoiceDetail(this);
        copyLine(*from, line);
        m_invoiceLines.append(line);
    }
}
