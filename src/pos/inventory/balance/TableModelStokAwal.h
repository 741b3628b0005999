#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of the list of beginning balances. */
class TableModelStokAwal final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelStokAwal(const QList<KorEntity*>& balances, QObject* parent);
};
