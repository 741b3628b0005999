#pragma once

#include <QDate>
#include <QHash>
#include <QString>

class KorQuery;

/**
 * The sums for the quantity on hand: purchased, sold and returned to suppliers. All dates are inclusive. If a function
 * returns false, the query has the error.
 */
class StockMovements
{
public:
    enum Kind { Acquired, Used, Returned };

    /** The moved quantity of the item up to the end date, or from a valid start date to the end date. */
    static bool quantity(KorQuery& query, Kind kind, int itemId, const QDate& start, const QDate& end, int& quantity);

    /** The four terms of the quantity on hand. */
    struct OnHand
    {
        /** The last count, or the beginning balance. */
        int base = 0;
        int acquired = 0;
        int used = 0;
        int returned = 0;

        [[nodiscard]] int quantity() const { return base + acquired - used - returned; }
    };
    /** The quantity on hand of every item at the date, with one statement. */
    static bool onHand(KorQuery& query, const QDate& date, QHash<int, int>& quantities);
    /** The same of one item; all terms are 0 for an item that is not stored. */
    static bool onHand(KorQuery& query, int itemId, const QDate& date, OnHand& figures);

    /** The SQL with its date limits: up to one day, or a period. */
    [[nodiscard]] static QString statement(Kind kind, bool isPeriod);
    [[nodiscard]] static QString onHandStatement(bool isOfOneItem = false);
};
