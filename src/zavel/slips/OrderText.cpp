#include "zavel/slips/OrderText.h"

#include "app/widgets/TimeAgo.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"
#include "pos/printing/printer/SlipText.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/slips/BillText.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
struct OrderLabels
{
    Q_DECLARE_TR_FUNCTIONS(OrderText)

public:
    static QString phone() { return tr("Telp : "); }
    static QString total() { return tr("Total"); }
    static QString cancelled() { return tr("Order Cancelled.\n"); }
    static QString takenBack() { return tr("Taken back:"); }
    static QString moved(const QString& from, const QString& to)
    {
        return tr("Moved from table %1 to table %2").arg(from, to);
    }
    static QString former(const EntityOrderDetail::Former& former)
    {
        return former.description.isEmpty() ? tr("was %1").arg(former.qty)
                                            : tr("was %1, %2").arg(former.qty).arg(former.description);
    }
};

QString dateLine(const QDateTime& moment) { return "Date   : " + moment.toString(slipTimeFormat()); }

QString tableText(const EntityOrder& order)
{
    const auto* dine = qobject_cast<const EntityMakanDitempat*>(&order);
    return dine ? dine->tableTrail() : QString();
}

/** Adds the lines that all slips of a kitchen begin with. */
void addFrame(SlipText& text, const KitchenSlipData& slip, const QString& takeAwayLabel)
{
    const EntityOrder& order = *slip.order;
    const auto age = [&slip](const QDateTime& moment) { return timeAgo(moment, slip.now, TimeAgoWords::onSlips()); };
    text.line("Member : " + memberText(order.getMember()));
    text.line("Guest  : " + order.getPemesan());
    text.line(dateLine(order.getCreatedTime().isNull() ? slip.now : order.getCreatedTime()));
    // An order that was never changed shows its creation time as its update time.
    const QDateTime updated = order.getUpdatedTime().isNull() ? order.getCreatedTime() : order.getUpdatedTime();
    const QString ages = "Created: " + age(order.getCreatedTime()) + " Updated : " + age(updated);
    text.line(ages.left(qMax(text.columns(), 0)));
    text.line(slip.kind == TakeAwayOrder ? takeAwayLabel + QString::number(order.getId())
                                         : "Table  : " + tableText(order));
    text.separator();
}

QString typeCode(const EntityOrderDetail& line)
{
    const EntityItem* item = line.getItem();
    return item && item->getJenis() ? item->getJenis()->getKode() : QString();
}

QString menuLine(int number, const EntityOrderDetail& line, const QString& marker, int quantity)
{
    constexpr int codeWidth = 5;
    constexpr int nameWidth = 18;
    constexpr int quantityWidth = 6;
    const QString code = line.getItem() ? line.getItem()->getKode() : QString();
    const QString name = line.getItem() ? line.getItem()->getNama() : QString();
    return SlipText::right(QString::number(number), 3) + "  " + SlipText::left(code.left(codeWidth), codeWidth) + "  " +
           SlipText::left(marker + name.left(nameWidth - marker.size()), nameWidth) + "  " +
           SlipText::right(QString::number(quantity).left(quantityWidth), quantityWidth) + "  ";
}

void addTotal(SlipText& text, int total)
{
    text.separator();
    text.line(SlipText::left(OrderLabels::total(), 30) + " :" + SlipText::right(QString::number(total), 6) + "  ");
}
} // namespace

bool cooksAny(const EntityConfigKitchenPrinter& kitchen, const EntityOrder::Lines& lines)
{
    return std::any_of(lines.cbegin(), lines.cend(),
                       [&kitchen](const EntityOrderDetail* line) { return kitchen.cooks(typeCode(*line)); });
}

std::optional<QString> composeMenuOrder(const KitchenSlipData& slip)
{
    SlipText text(slip.kitchen->columns());
    addFrame(text, slip, "Take Away : ");
    int number = 0;
    int total = 0;
    for (const EntityOrderDetail* line : slip.order->getDetails()) {
        // Lines keep their number within the whole order, so that kitchen and waiter use the same number.
        ++number;
        if (!slip.kitchen->cooks(typeCode(*line)))
            continue;
        const bool isChanged = line->getStatus() == EntityOrderDetail::UPDATED;
        const bool saysFormer = isChanged && slip.kitchen->saysFormer() && line->former();
        const int quantity = saysFormer ? line->former()->qtyNow : line->getQty();
        total += quantity;
        text.line(menuLine(number, *line, isChanged ? "*" : "", quantity));
        if (!line->getDescription().isEmpty())
            text.line(SlipText::left(line->getDescription(), 40));
        if (saysFormer)
            text.line(SlipText::left(OrderLabels::former(*line->former()), 40));
    }
    if (!cooksAny(*slip.kitchen, slip.order->getDetails()))
        return std::nullopt;
    addTotal(text, total);
    text.lineFeeds(slip.kitchen->blankLines());
    return text.text();
}

QString composeMenuOrderCanceled(const KitchenSlipData& slip)
{
    SlipText text(slip.kitchen->columns());
    addFrame(text, slip, "Take Away: ");
    text.append(OrderLabels::cancelled());
    text.separator();
    text.lineFeeds(slip.kitchen->blankLines());
    return text.text();
}

std::optional<QString> composeTakenBack(const KitchenSlipData& slip)
{
    if (!cooksAny(*slip.kitchen, slip.order->getTakenBackDetails()))
        return std::nullopt;
    SlipText text(slip.kitchen->columns());
    addFrame(text, slip, "Take Away: ");
    text.line(OrderLabels::takenBack());
    int number = 0;
    for (const EntityOrderDetail* line : slip.order->getTakenBackDetails()) {
        if (slip.kitchen->cooks(typeCode(*line)))
            text.line(menuLine(++number, *line, QString(), line->getQty()));
    }
    text.separator();
    text.lineFeeds(slip.kitchen->blankLines());
    return text.text();
}

std::optional<QString> composeMove(const KitchenSlipData& slip, const QString& formerTable)
{
    const auto* dine = qobject_cast<const EntityMakanDitempat*>(slip.order);
    if (!dine || !dine->getMeja() || !cooksAny(*slip.kitchen, dine->getDetails()))
        return std::nullopt;
    SlipText text(slip.kitchen->columns());
    addFrame(text, slip, {});
    text.line(OrderLabels::moved(formerTable, dine->getMeja()->getKode()));
    text.separator();
    text.lineFeeds(slip.kitchen->blankLines());
    return text.text();
}

QString composeOrderRecap(const EntityMakanDitempat& order, const EntityDataPerusahaan& company,
                          const EntityConfigCashierPrinter& printer)
{
    SlipText text(printer.columns());
    addCompany(text, company, OrderLabels::phone());
    text.line("Table  : " + (order.getMeja() ? order.getMeja()->getNama() : QString()));
    text.line(dateLine(order.getCreatedTime()));
    text.separator();
    int number = 0;
    int total = 0;
    for (const EntityOrderDetail* line : order.getDetails()) {
        text.line(menuLine(++number, *line, QString(), line->getQty()));
        total += line->getQty();
    }
    addTotal(text, total);
    text.lineFeeds(printer.blankLines());
    return text.text();
}
