#pragma once

#include <QString>

/**
 * SQL for the stock lists. The parts belong between "with" and the select, separated by commas. All days are SQL.
 */
namespace StockFigures
{
/**
 * "stock" with one row per item: item_id; closing, the quantity at the end of the day; counted, the day of its last
 * count.
 */
[[nodiscard]] QString stock(const QString& day);
/**
 * "stock" of a period, with one row per item: item_id; opening, the quantity before the first day; bought, sold and
 * returned in the period; closing.
 */
[[nodiscard]] QString movements(const QString& firstDay, const QString& lastDay);
/**
 * "idle" with the stock items of which there is something but that were neither bought nor sold for so many days:
 * item_id, lastbought, lastsold. It reads "stock".
 */
[[nodiscard]] QString idle(const QString& day, const QString& days);
/** "price": item_id, price, bought. */
[[nodiscard]] QString price(const QString& limit);
} // namespace StockFigures
