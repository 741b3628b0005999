#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QPointer>

class ItemStockReader;

/** The rows of the list of items. */
class TableModelItem final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelItem(const QList<KorEntity*>& items, QObject* parent);

    /** The quantities on hand, borrowed. Without them the column is empty. */
    void setStock(const ItemStockReader* stock);

private:
    QPointer<const ItemStockReader> m_stock;
};
