#pragma once

#include <QDate>
#include <QString>

class TestDatabase;

/** A sale as it lies in the database, for lists and figures. Ids are 0 where the sale has none; amounts are in Rp. */
struct SaleRow
{
    QString no;
    QString type = "TRD";
    int total = 100;
    int paid = 100;
    int other = 0;
    int status = 1;
    QDate date = QDate(2026, 3, 1);
    QString guest = QString();
    int table = 1;
    int member = 0;
    int employee = 0;
    int agent = 0;
    int user = 1;
    /** The order that a dine-in sale pays for; 0 makes one. */
    int order = 0;
};

/** Makes sure that the user exists who made the sales. */
void insertSeller(TestDatabase& database, int id, const QString& name);
/** Lays the sale down in the shop of ShopRows.h, with one line of the item over its total; returns the invoice's id. */
int insertSale(TestDatabase& database, const SaleRow& sale);
/** A busy month: that many sales of all three kinds in the last 30 days, some of them still open. */
void insertManySales(TestDatabase& database, int count);
