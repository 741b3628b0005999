#pragma once

#include "app/widgets/AppEntityModel.h"

/** The purchases whose goods can be returned. */
class TableModelSelectPurchases final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelSelectPurchases(const QList<KorEntity*>& purchases, QObject* parent);
};
