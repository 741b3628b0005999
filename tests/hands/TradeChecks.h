#pragma once

#include <QStringList>

class TestDatabase;

/** A shop in which every page has something to show and to do: goods, tables, a member with a discount, open orders. */
void openShopForHands(TestDatabase& database);

/**
 * What must hold in a shop's database whoever pressed what: lines and headers, numbers, statuses, dues, stock. Each
 * line names what does not hold, and of which rows; empty when all is well.
 */
[[nodiscard]] QStringList faultsOfTrade(TestDatabase& database);
