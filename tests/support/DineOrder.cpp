#include "support/DineOrder.h"

#include "support/TestDatabase.h"

int insertDineOrder(TestDatabase& database, const QList<QPair<int, int>>& lines, const QDate& date)
{
    const int id = database
                       .value(QString("INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, version) VALUES "
                                      "(1, 1, 'Mary', '%1', 1) RETURNING id")
                                  .arg(date.toString(Qt::ISODate)))
                       .toInt();
    for (const auto& line : lines)
        database.run(QString("INSERT INTO makan_ditempat_detail (makan_ditempat_id, item_id, qty, status, "
                             "total_currency, total_amount, price_each_currency, price_each_amount, version) VALUES "
                             "(%1, 1, %2, 1, 'Rp', %4, 'Rp', %3, 1)")
                         .arg(id)
                         .arg(line.first)
                         .arg(line.second)
                         .arg(qint64(line.first) * line.second));
    return id;
}
