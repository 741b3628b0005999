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

/** A further item of the shop; its type has an id. */
void insertItem(TestDatabase& database, int id, const QString& code, const QString& name, int type = 1);

/** The money of a sale: what it came to, what was handed over in cash, and what was paid otherwise. */
struct SaleMoney
{
    qint64 total;
    qint64 cash;
    qint64 other = 0;
};

/** Lays down the invoice of one sale with one line: so many of the item, for the total. */
void insertSale(TestDatabase& database, const QDate& date, int item, const SaleMoney& money, int qty = 1, int user = 1);
