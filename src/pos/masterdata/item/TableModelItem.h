#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>

class TableModelItem final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelItem(const QList<KorEntity*>& items, QObject* parent);

    /** The quantities on hand by the items' ids; an item that is not among them shows 0. */
    void setStock(const QHash<int, int>& stock) { m_stock = stock; }

private:
    QHash<int, int> m_stock;
};
