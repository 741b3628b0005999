#pragma once

#include <QStringList>

class TestDatabase;

/** A shop in which every page has data: items, tables, a member with a discount, open orders. */
void openShopForHands(TestDatabase& database);

/**
 * Checks the shop's database for consistency: lines and headers, numbers, statuses, dues, stock. One line per fault
 * with its rows; empty if there is none.
 */
[[nodiscard]] QStringList faultsOfTrade(TestDatabase& database);
