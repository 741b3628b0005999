#pragma once

#include <QString>

/**
 * SQL of the quantity on hand: the last count or else the beginning balance, plus purchases, minus sales and returns
 * since. The parts belong between "with" and the select, separated by commas. Days and the item are SQL.
 *
 * Years of sales have millions of lines. The lines of an item are summed from their index alone, without reading the
 * date of each invoice: numbers of invoices grow with their dates, except for those that were dated back or ahead. So
 * the highest number up to the day and the lowest one since a count limit the lines; what lies between them but belongs
 * to another day is taken off.
 */
namespace StockOnHand
{
/** Selects the last count of each item up to the day: item_id, day, qty. Of two on one day the one entered last. */
[[nodiscard]] QString lastCounts(const QString& day, const QString& item = QString());
/**
 * "NAME" at the end of the day, with one row per item, or only that of the item: item_id; counted, the day of its last
 * count; base, the count or the beginning balance; acquired, used and returned since. Its own parts begin with "NAME_";
 * one of them is "NAME_last", whose id no invoice up to the day exceeds.
 */
[[nodiscard]] QString parts(const QString& name, const QString& day, const QString& item = QString());
/** The quantity on hand from these columns. */
[[nodiscard]] QString quantity(const QString& name);
} // namespace StockOnHand
