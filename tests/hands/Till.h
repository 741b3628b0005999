#pragma once

#include <QFile>
#include <QString>

class BusinessPenjualan;
class EntityItem;
class EntityMeja;

/** The size of a till's n-th bill, which follows from the number alone, so that the books can be checked by it. */
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
 * A till without a window, with a table of its own: takes orders and bills them, one after the other, and writes what
 * the program says to a journal that outlives it: "try REFERENCE", then "ack REFERENCE NUMBER", "refused REFERENCE
 * REASON" or "unsure REFERENCE REASON". The reference ("T3-17") stands on order and bill as the guest's name.
 */
class Till
{
public:
    Till(int number, const QString& journal);

    /** The table that it serves. */
    [[nodiscard]] static QString tableCode(int number) { return "TILL" + QString::number(number); }
    /** Goes on until the journal holds so many acknowledged bills, with a pause between two; false without a shop. */
    [[nodiscard]] bool work(int bills, int pace);

private:
    void readJournal();
    void write(const QString& line);
    /** Takes one order and bills it. */
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
