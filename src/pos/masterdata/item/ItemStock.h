#pragma once

#include <QDate>
#include <QHash>
#include <QObject>

/** What the list of items needs from the stock service. An interface, because that service depends on items. */
class ItemStock
{
public:
    virtual ~ItemStock() = default;

    /** The quantity on hand of every item by id; wrong if the service has an error. */
    [[nodiscard]] virtual QHash<int, int> quantitiesOnHand(const QDate& date) = 0;
};

Q_DECLARE_INTERFACE(ItemStock, "pos.ItemStock")
