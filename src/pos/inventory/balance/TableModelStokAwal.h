#pragma once

#include "app/widgets/AppEntityModel.h"

class TableModelStokAwal final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelStokAwal(const QList<KorEntity*>& balances, QObject* parent);
};
