#include "zavel/payment/BillLines.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "zavel/order/EntityOrder.h"

#include <QStringList>

#include <algorithm>
#include <memory>

namespace
{
EntityInvoiceDetail* newLine(EntityItem* item, Money* price, int quantity, QObject* owner)
{
    auto* line = new EntityInvoiceDetail(owner);
    line->setItem(item);
    line->setQty(quantity);
    line->setPriceEach(price);
    // Calculated from price and quantity: an order line's own total may not match its quantity (see mergeLines()).
    line->recomputeTotal();
    return line;
}

void changeQuantity(EntityInvoiceDetail* line, int by)
{
    line->setQty(line->getQty() + by);
    line->recomputeTotal();
}

int itemOf(const EntityInvoiceDetail& line) { return line.getItem() ? line.getItem()->getId() : KorNoValue; }

bool isSameDish(const EntityInvoiceDetail& one, const EntityInvoiceDetail& other)
{
    return itemOf(one) == itemOf(other);
}

bool sellsTheSame(const EntityInvoiceDetail& one, const EntityInvoiceDetail& other)
{
    return isSameDish(one, other) && one.getPriceEach()->rawAmount() == other.getPriceEach()->rawAmount();
}
} // namespace

InvoiceLines billOf(const EntityOrder& order, QObject* owner)
{
    InvoiceLines lines;
    for (const EntityOrderDetail* ordered : order.getDetails())
        lines.append(newLine(ordered->getItem(), ordered->getPriceEach(), ordered->getQty(), owner));
    return lines;
}

QMap<QString, InvoiceLines> splitGroups(const InvoiceLines& lines, QObject* owner)
{
    QMap<QString, InvoiceLines> groups;
    for (const EntityInvoiceDetail* line : lines) {
        if (line->qtySplit() <= 0)
            continue;
        EntityInvoiceDetail* part = newLine(line->getItem(), line->getPriceEach(), line->qtySplit(), owner);
        part->setSplitGroup(line->splitGroup());
        groups[line->splitGroup()].append(part);
    }
    return groups;
}

void addLines(const InvoiceLines& added, InvoiceLines* lines, QObject* owner)
{
    for (const EntityInvoiceDetail* part : added) {
        const auto home = std::find_if(lines->cbegin(), lines->cend(),
                                       [part](const EntityInvoiceDetail* line) { return sellsTheSame(*line, *part); });
        if (home == lines->cend())
            lines->append(newLine(part->getItem(), part->getPriceEach(), part->getQty(), owner));
        else
            changeQuantity(*home, part->getQty());
    }
}

void takeOffLines(const InvoiceLines& takenOff, InvoiceLines* lines)
{
    using Same = bool (*)(const EntityInvoiceDetail&, const EntityInvoiceDetail&);
    InvoiceLines emptied;
    for (const EntityInvoiceDetail* part : takenOff) {
        int left = part->getQty();
        // The price may have changed since; lines with the same price are reduced first.
        for (const Same same : {Same(sellsTheSame), Same(isSameDish)}) {
            for (EntityInvoiceDetail* line : qAsConst(*lines)) {
                const int taken = same(*line, *part) ? std::min(left, line->getQty()) : 0;
                if (taken <= 0)
                    continue;
                changeQuantity(line, -taken);
                left -= taken;
                if (line->getQty() == 0)
                    emptied.append(line);
            }
        }
    }
    // Lines that had quantity 0 before were split off completely, and stay.
    for (EntityInvoiceDetail* line : qAsConst(emptied))
        lines->removeOne(line);
}

BillDifference differenceOf(const EntityOrder& order, const InvoiceLines& billed, QObject* owner)
{
    // An order without lines cannot be compared.
    if (order.getDetails().isEmpty())
        return {};
    // Quantities by dish and price, in the order's sequence, minus the quantities billed.
    InvoiceLines rest;
    const auto count = [&rest, owner](const EntityInvoiceDetail& line, int sign) {
        if (!line.getItem() || !line.getPriceEach())
            return;
        const auto known = std::find_if(rest.cbegin(), rest.cend(),
                                        [&line](const EntityInvoiceDetail* dish) { return sellsTheSame(*dish, line); });
        if (known == rest.cend())
            rest.append(newLine(line.getItem(), line.getPriceEach(), sign * line.getQty(), owner));
        else
            changeQuantity(*known, sign * line.getQty());
    };
    QObject lines;
    const InvoiceLines ordered = billOf(order, &lines);
    for (const EntityInvoiceDetail* line : ordered)
        count(*line, 1);
    for (const EntityInvoiceDetail* line : billed)
        count(*line, -1);

    // A dish whose price has changed since counts neither as unbilled nor as taken back.
    for (EntityInvoiceDetail* more : qAsConst(rest)) {
        for (EntityInvoiceDetail* less : qAsConst(rest)) {
            if (!isSameDish(*more, *less) || more->getQty() <= 0 || less->getQty() >= 0)
                continue;
            const int both = std::min(more->getQty(), -less->getQty());
            changeQuantity(more, -both);
            changeQuantity(less, both);
        }
    }

    BillDifference difference;
    for (EntityInvoiceDetail* dish : qAsConst(rest)) {
        if (dish->getQty() > 0)
            difference.unbilled.append(dish);
        else if (dish->getQty() < 0) {
            changeQuantity(dish, -2 * dish->getQty());
            difference.takenBack.append(dish);
        }
    }
    return difference;
}

QString BillDifference::dishesOf(const InvoiceLines& lines)
{
    QStringList dishes;
    std::unique_ptr<Money> sum(lines.first()->getTotal()->multiply(0));
    for (const EntityInvoiceDetail* line : lines) {
        dishes.append(
            tr("%1 %2 (%3)").arg(line->getQty()).arg(line->getItem()->getNama(), line->getTotal()->toCurrencyString()));
        sum.reset(sum->add(line->getTotal()));
    }
    return lines.size() < 2 ? dishes.join(", ") : tr("%1; %2 in all").arg(dishes.join(", "), sum->toCurrencyString());
}

QString BillDifference::text() const
{
    QStringList parts;
    if (!unbilled.isEmpty())
        parts.append(tr("Ordered, but on no bill: %1").arg(dishesOf(unbilled)));
    if (!takenBack.isEmpty())
        parts.append(tr("On the bill, but taken back: %1").arg(dishesOf(takenBack)));
    return parts.join("\r\n");
}
