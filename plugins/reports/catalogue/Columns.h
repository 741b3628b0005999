#pragma once

#include "reports/engine/Report.h"

/** Columns that many reports have, by the same fields and under the same titles. */
namespace Columns
{
/** "code", "name", "itemtype" and "unit" of an item. */
[[nodiscard]] ReportColumn code();
[[nodiscard]] ReportColumn item();
[[nodiscard]] ReportColumn itemType();
[[nodiscard]] ReportColumn unit();
/** "supplier", "no", "day", "note" and "username": the name, the house's own number, and who entered it. */
[[nodiscard]] ReportColumn supplier();
[[nodiscard]] ReportColumn number();
[[nodiscard]] ReportColumn day();
[[nodiscard]] ReportColumn note();
[[nodiscard]] ReportColumn user();
/** "status" of a purchase or a return in words. */
[[nodiscard]] ReportColumn paidStatus();
} // namespace Columns

/** Conditions for the questions of the same name; each begins with "and". */
namespace Asked
{
/** ":itemtype" and ":item", with the table "item" at hand. */
extern const char* const item;
/** ":supplier", with the table "supplier" at hand. */
extern const char* const supplier;
} // namespace Asked
