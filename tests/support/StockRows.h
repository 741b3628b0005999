#pragma once

class TestDatabase;

/**
 * A storeroom in full swing, in the shop of ShopRows.h: that many items, each with 40 lines of invoices, 4 of purchases
 * and one of a return, and every third one counted. All of it lies in the given number of years before today. The
 * purchases stand in the journal; item 1 is bought every day on top of that.
 */
void insertManyMovements(TestDatabase& database, int items, int years = 1);
