#pragma once

#include <QDate>
#include <QHash>
#include <QObject>

class KorEntity;

/** What the list of items needs from the stock service. An interface, because that service depends on items. */
class ItemStock
{
public:
    virtual ~ItemStock() = default;

    /**
     * The quantity on hand of every item by id. It runs on the calling thread's connection and touches nothing else, so
     * any thread may call it; false with the error after a failure.
     */
    [[nodiscard]] virtual bool readOnHand(const QDate& date, QHash<int, int>& quantities, QString& error) const = 0;
    /** The quantity of one item, on the application's thread; wrong if the service has an error. */
    [[nodiscard]] virtual int getQuantityOnHand(const KorEntity* item, const QDate& date) = 0;
};

Q_DECLARE_INTERFACE(ItemStock, "pos.ItemStock")
