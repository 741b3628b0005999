#pragma once

#include <QDate>
#include <QHash>
#include <QString>

class KorQuery;

/**
 * The sums from which the quantity on hand is reckoned: what purchases brought, what sales used and what went back
 * to suppliers. All dates are inclusive. False leaves the reason in the query.
 */
class StockMovements
{
public:
    enum Kind { Acquired, Used, Returned };

    /** The moved quantity of the item up to the end date; with a start date only from there on. */
    static bool quantity(KorQuery& query, Kind kind, int itemId, const QDate& start, const QDate& end, int& quantity);
    /** The quantity on hand of every item at the date, in one statement. */
    static bool onHand(KorQuery& query, const QDate& date, QHash<int, int>& quantities);

    /** The statement with its date limits: one day or a period. */
    [[nodiscard]] static QString statement(Kind kind, bool isPeriod);
    [[nodiscard]] static QString onHandStatement();
};
