#pragma once

#include <QFile>
#include <QString>

class BusinessPenjualan;
class EntityItem;
class EntityMeja;

/** The lines of a till's n-th bill; calculated from n only, so that the database can be checked against it. */
struct TillBill
{
    explicit TillBill(int number) : lines(1 + number % 4), qty(1 + number % 3) {}

    static constexpr int price = 25000;
    int lines;
    int qty;

    [[nodiscard]] int lineTotal() const { return qty * price; }
    [[nodiscard]] int total() const { return lines * lineTotal(); }
};

/**
 * A till without a window and with its own table: it takes orders and bills them, one after the other, and writes the
 * results to a journal file: "try REFERENCE", then "ack REFERENCE NUMBER", "refused REFERENCE REASON" or "unsure
 * REFERENCE REASON". The reference ("T3-17") is the guest's name in order and bill.
 */
class Till
{
public:
    Till(int number, const QString& journal);

    /** The code of the till's table. */
    [[nodiscard]] static QString tableCode(int number) { return "TILL" + QString::number(number); }
    /**
     * Works until the journal has this many confirmed bills, with a pause (ms) between two; false if there is no shop.
     */
    [[nodiscard]] bool work(int bills, int pace);

private:
    void readJournal();
    void write(const QString& line);
    /** Enters one order and bills it. */
    bool serve();
    void giveUp(const QString& reference);

    QString m_name;
    QString m_code;
    QFile m_journal;
    int m_acknowledged = 0;
    int m_last = 0;
    BusinessPenjualan* m_sales = nullptr;
    EntityItem* m_item = nullptr;
    EntityMeja* m_table = nullptr;
};
