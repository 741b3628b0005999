#pragma once

#include <QString>

/**
 * SQL for the quantity on hand, calculated as the program does: the last count or the beginning balance, plus
 * purchases, minus sales and returns since. The parts belong between "with" and the select, separated by commas.
 */
namespace StockFigures
{
/**
 * "stock" with one row per item: item_id; closing, the quantity at the end of the last day; counted, the day of its
 * last count; lastbought and lastsold. With a first day also opening, the quantity before that day, and bought, sold
 * and returned from that day on. Both days are SQL.
 */
[[nodiscard]] QString stock(const QString& lastDay, const QString& firstDay = QString());
/** "price": item_id, price, bought. */
[[nodiscard]] QString price(const QString& limit);
} // namespace StockFigures
