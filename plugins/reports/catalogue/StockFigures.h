#pragma once

#include <QString>

/**
 * The quantity on hand, reckoned as the program does: from an item's last count or its beginning balance, and from
 * what was bought, sold and returned since. The parts stand between "with" and the select, separated by commas.
 */
namespace StockFigures
{
/**
 * "stock" with a row for every item: item_id, closing, what there was at the end of the last day; counted, the day of
 * the count that it goes by; lastbought and lastsold. With a first day also opening, what there was before it, and
 * what was bought, sold and returned from that day on. Both are statement text.
 */
[[nodiscard]] QString stock(const QString& lastDay, const QString& firstDay = QString());
/** "price": item_id, price, bought. */
[[nodiscard]] QString price(const QString& limit);
} // namespace StockFigures
