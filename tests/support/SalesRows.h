#pragma once

#include <QDate>
#include <QString>

class TestDatabase;

/** A stored sale for tests of lists and figures. Ids are 0 if the sale has none; amounts are in Rp. */
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
    /** The order of a dine-in sale; 0 creates one. */
    int order = 0;
};

/** Inserts the user of the sales if missing. */
void insertSeller(TestDatabase& database, int id, const QString& name);
/** Inserts the sale in the shop of ShopRows.h, with one line of the item for its total; returns the invoice's id. */
int insertSale(TestDatabase& database, const SaleRow& sale);
/** Inserts a busy month: this many sales of all three kinds in the last 30 days, some of them still open. */
void insertManySales(TestDatabase& database, int count);
