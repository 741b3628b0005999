#pragma once

class TestDatabase;

/**
 * A small restaurant's March of 2026, the same every time: two accounts of money, suppliers, members, agents,
 * waitresses and tables, six items, and of every kind of document a few that differ in what reports tell apart.
 */
void insertMonthOfTrade(TestDatabase& database);
