#pragma once

#include "reports/engine/Report.h"

/** Columns that many reports share, with the same field names and titles. */
namespace Columns
{
/** "code", "name", "itemtype" and "unit" of an item. */
[[nodiscard]] ReportColumn code();
[[nodiscard]] ReportColumn item();
[[nodiscard]] ReportColumn itemType();
[[nodiscard]] ReportColumn unit();
/** "supplier" (name), "no" (the document's own number), "day", "note" and "username" (who entered it). */
[[nodiscard]] ReportColumn supplier();
[[nodiscard]] ReportColumn number();
[[nodiscard]] ReportColumn day();
[[nodiscard]] ReportColumn note();
[[nodiscard]] ReportColumn user();
/** The text for "status" of a purchase or a return. */
[[nodiscard]] ReportColumn paidStatus();
} // namespace Columns

/** Conditions for the parameters of the same name; each begins with "and". */
namespace Asked
{
/** ":itemtype" and ":item"; the statement must join the table "item". */
extern const char* const item;
/** ":supplier"; the statement must join the table "supplier". */
extern const char* const supplier;
} // namespace Asked
