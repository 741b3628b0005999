#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>

/** The rows of the list of items. */
class TableModelItem final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelItem(const QList<KorEntity*>& items, QObject* parent);

    /** The quantities on hand by item id; a missing item shows 0. */
    void setStock(const QHash<int, int>& stock) { m_stock = stock; }

private:
    QHash<int, int> m_stock;
};
