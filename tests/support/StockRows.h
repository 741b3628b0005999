#pragma once

class TestDatabase;

/**
 * Inserts a busy stock in the shop of ShopRows.h: this many items, each with 40 invoice lines, 4 purchase lines and one
 * return line; every third item was counted. All within the given number of years before today. Purchases are in the
 * journal; item 1 is also bought every day.
 */
void insertManyMovements(TestDatabase& database, int items, int years = 1);
