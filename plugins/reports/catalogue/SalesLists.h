#pragma once

#include "reports/engine/Report.h"

/** The sales reports, grouped by topic. */
namespace SalesLists
{
/** By day, week, month, hour and weekday. */
[[nodiscard]] QList<Report> byTime();
/** By type of sale, table, waitress, cashier, member and agent. */
[[nodiscard]] QList<Report> byPartner();
/** By item and item type, and the margins. */
[[nodiscard]] QList<Report> byItem();
/** Single invoices: all, those with a discount, open ones, and receivables. */
[[nodiscard]] QList<Report> ofInvoices();
/** Commissions that agents earned and were paid. */
[[nodiscard]] QList<Report> ofAgents();
/** Unusual sales that the owner should check. */
[[nodiscard]] Report exceptions();
} // namespace SalesLists
