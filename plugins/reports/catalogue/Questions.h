#pragma once

#include "reports/engine/Report.h"

/** Parameters that many reports share. Ids are bound as text: compare with "(:x::bigint is null or ...)". */
namespace Questions
{
/** ":type": "TRD", "TRF" or "TRP". */
[[nodiscard]] ReportParameter saleType();
/** ":cashier": the id of a user. */
[[nodiscard]] ReportParameter cashier();
/** ":itemtype": the id of an item type. */
[[nodiscard]] ReportParameter itemType();
/** ":item": part of an item's code or name. */
[[nodiscard]] ReportParameter item();
/** ":member", ":supplier", ":agent", ":waitress": ids. */
[[nodiscard]] ReportParameter member();
[[nodiscard]] ReportParameter supplier();
[[nodiscard]] ReportParameter agent();
[[nodiscard]] ReportParameter waitress();
/** ":account": the code of a ledger account. */
[[nodiscard]] ReportParameter account();
} // namespace Questions
