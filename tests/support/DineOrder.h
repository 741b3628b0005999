#pragma once

#include <QDate>
#include <QList>
#include <QPair>

class TestDatabase;

/**
 * Lays down an order on table 1 of insertShop(): its guest is "Mary", it waits for the menu, and it has a line of the
 * item RICE for every pair of a quantity and a price. Returns the order's id.
 */
int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date = {2026, 3, 1});
