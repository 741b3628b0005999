#pragma once

#include <QString>

class TestDatabase;

/** A purchase of the shop's supplier with one line. */
struct PurchaseRow
{
    QString no;
    QString invoiceNo;
    int paid = 0;
    int quantity = 1;
    int price = 0;
    /** The line's discount in percent. */
    int discount = 0;
    int item = 1;
};

/** Inserts the purchase on 1 March 2026 and returns its id, which is also the id of its line. */
int insertPurchase(TestDatabase& database, const PurchaseRow& row);
