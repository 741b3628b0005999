#pragma once

#include "reports/engine/Report.h"

/** The reports on master data, stock and purchasing, grouped by topic. */
namespace GoodsLists
{
/** Items with their prices, accounts and components. */
[[nodiscard]] QList<Report> items();
/** Suppliers, members, agents and employees. */
[[nodiscard]] QList<Report> contacts();
/** Accounts, tables, units and item types. */
[[nodiscard]] QList<Report> lists();
/** Users and rights. */
[[nodiscard]] QList<Report> users();

/** Stock on hand on a day, negative stock, and items without movements. */
[[nodiscard]] QList<Report> stockAtADay();
/** Movements and stock counts of a period. */
[[nodiscard]] QList<Report> stockOfAPeriod();

/** Purchases of a period. */
[[nodiscard]] QList<Report> purchases();
/** Open purchase orders and returns. */
[[nodiscard]] QList<Report> ordersAndReturns();
/** Open purchases and payments to suppliers. */
[[nodiscard]] QList<Report> payables();
} // namespace GoodsLists
