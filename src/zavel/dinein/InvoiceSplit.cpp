#include "zavel/dinein/InvoiceSplit.h"

#include "pos/invoice/EntityInvoiceDetail.h"

#include <algorithm>

namespace
{
EntityInvoiceDetail* lineLike(const EntityInvoiceDetail& line, int quantity, QObject* owner)
{
    auto* copy = new EntityInvoiceDetail(owner);
    copy->setItem(line.getItem());
    copy->setQty(quantity);
    copy->setPriceEach(line.getPriceEach());
    copy->recomputeTotal();
    return copy;
}

bool sellsTheSame(const EntityInvoiceDetail& one, const EntityInvoiceDetail& other)
{
    return one.getItem()->getId() == other.getItem()->getId() &&
           one.getPriceEach()->rawAmount() == other.getPriceEach()->rawAmount();
}
} // namespace

QMap<QString, InvoiceLines> splitGroups(const InvoiceLines& lines, QObject* owner)
{
    QMap<QString, InvoiceLines> groups;
    for (const EntityInvoiceDetail* line : lines) {
        if (line->qtySplit() <= 0)
            continue;
        EntityInvoiceDetail* part = lineLike(*line, line->qtySplit(), owner);
        part->setSplitGroup(line->splitGroup());
        groups[line->splitGroup()].append(part);
    }
    return groups;
}

void giveBack(const InvoiceLines& group, InvoiceLines* lines, QObject* owner)
{
    for (const EntityInvoiceDetail* part : group) {
        const auto home = std::find_if(lines->cbegin(), lines->cend(),
                                       [part](const EntityInvoiceDetail* line) { return sellsTheSame(*line, *part); });
        if (home == lines->cend()) {
            lines->append(lineLike(*part, part->getQty(), owner));
            continue;
        }
        (*home)->setQty((*home)->getQty() + part->getQty());
        (*home)->recomputeTotal();
    }
}
