#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of the list of stock adjustments. */
class TableModelInventoryAdj final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelInventoryAdj(const QList<KorEntity*>& takes, QObject* parent);
};
