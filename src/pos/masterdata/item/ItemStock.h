#pragma once

#include <QDate>
#include <QHash>
#include <QObject>

/** What the list of items asks the service of the stock, which knows items and so lies above them. */
class ItemStock
{
public:
    virtual ~ItemStock() = default;

    /** What is on hand of every item, by its id; worth nothing while the service holds an error. */
    [[nodiscard]] virtual QHash<int, int> quantitiesOnHand(const QDate& date) = 0;
};

Q_DECLARE_INTERFACE(ItemStock, "pos.ItemStock")
