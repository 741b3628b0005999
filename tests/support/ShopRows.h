#pragma once

#include <QDate>
#include <QList>
#include <QPair>

class TestDatabase;

/**
 * Inserts the smallest shop that documents need; every record has the id 1: account "1-100" Cash, supplier "S1" Market,
 * item "RICE" with unit "KG" and type "FOOD", member "M1" Guest, agent "A1" Guide with 10 percent, employee "E1" Ann,
 * table "T1". All running numbers are at 7 with their name as prefix ("PO-0007").
 */
void insertShop(TestDatabase& database);

/**
 * Inserts an order on the shop's table and returns its id: guest "Mary", status "waiting for menu", and one line of the
 * item RICE per pair of quantity and price.
 */
int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date = {2026, 3, 1});

/** Inserts another item with this type. */
void insertItem(TestDatabase& database, int id, const QString& code, const QString& name, int type = 1);

/** The amounts of a sale: total, cash received, and other payments. */
struct SaleMoney
{
    qint64 total;
    qint64 cash;
    qint64 other = 0;
};

/** Inserts the invoice of a sale with one line: this quantity of the item for the total. */
void insertSale(TestDatabase& database, const QDate& date, int item, const SaleMoney& money, int qty = 1, int user = 1);
