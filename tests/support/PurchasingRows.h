#pragma once

#include <QString>

class TestDatabase;

/** A stored purchase of the shop's supplier with one line. */
struct PurchaseRow
{
    QString no;
    QString invoiceNo;
    int paid = 0;
    int quantity = 1;
    int price = 0;
    /** Off the line, in percent. */
    int discount = 0;
    int item = 1;
};

/** Lays the purchase down on the first of March 2026; its line and itself have the id that is returned. */
int insertPurchase(TestDatabase& database, const PurchaseRow& row);
