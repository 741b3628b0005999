#pragma once

#include <QString>

/**
 * The quantity on hand, reckoned as the program does: from an item's last count or its beginning balance, and from
 * what was bought, sold and returned since. The parts stand between "with" and the select, separated by commas.
 */
namespace StockFigures
{
/** "moved": item_id, day, bought, sold, returned; several rows for an item's day. Nothing after the limit. */
[[nodiscard]] QString moved(const QString& limit);
/** A part of that name with item_id, qty and counted, the day of the count that it goes by; every item has a row. */
[[nodiscard]] QString onHand(const QString& name, const QString& day);
/** "price": item_id, price, bought. */
[[nodiscard]] QString price(const QString& limit);
} // namespace StockFigures
