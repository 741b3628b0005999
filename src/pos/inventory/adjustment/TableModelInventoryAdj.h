#pragma once

#include "app/widgets/AppEntityModel.h"

class TableModelInventoryAdj final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelInventoryAdj(const QList<KorEntity*>& takes, QObject* parent);
};
