#pragma once

#include "reports/engine/Report.h"

/** The reports of sales by what they tell about. */
namespace SalesLists
{
/** By day, week, month, hour and weekday. */
[[nodiscard]] QList<Report> byTime();
/** By type of sale, table, waitress, cashier, member and agent. */
[[nodiscard]] QList<Report> byPartner();
/** By item and item type, and the margin. */
[[nodiscard]] QList<Report> byItem();
/** Invoice by invoice: all of them, those with a discount, those still open, and what is odd about some. */
[[nodiscard]] QList<Report> ofInvoices();
/** What agents earned and were paid. */
[[nodiscard]] QList<Report> ofAgents();
/** Where somebody should look twice. */
[[nodiscard]] Report exceptions();
} // namespace SalesLists
