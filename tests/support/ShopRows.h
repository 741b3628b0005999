#pragma once

#include <QDate>
#include <QList>
#include <QPair>

class TestDatabase;

/**
 * The smallest shop that a document can be written in, every record with id 1: account "1-100" Cash, supplier "S1"
 * Market, item "RICE" by the "KG" of type "FOOD", member "M1" Guest, agent "A1" Guide of 10 percent, employee "E1"
 * Ann, table "T1", and all running numbers at 7 with their name in front ("PO-0007").
 */
void insertShop(TestDatabase& database);

/**
 * Lays down an order on the shop's table: its guest is "Mary", it waits for the menu, and it has a line of the
 * item RICE for every pair of a quantity and a price. Returns the order's id.
 */
int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date = {2026, 3, 1});
