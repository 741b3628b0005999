#pragma once

#include "reports/engine/Report.h"

/** The reports of goods and of those who deal with the house, by what they tell about. */
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

/** What there is on a day, what is below nothing and what lies still. */
[[nodiscard]] QList<Report> stockAtADay();
/** What came, went and was counted in a period. */
[[nodiscard]] QList<Report> stockOfAPeriod();

/** What was bought in a period. */
[[nodiscard]] QList<Report> purchases();
/** Orders that are still to come, and what went back. */
[[nodiscard]] QList<Report> ordersAndReturns();
/** What the house owes and what it paid. */
[[nodiscard]] QList<Report> payables();
} // namespace GoodsLists
